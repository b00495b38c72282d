// A roster of 50,000 fetched through Recordset, sorted and searched, beside the bare loop over the
// same statement. The bare loop touches every cell as SQLite gives it and keeps nothing; the ratio
// is the price of keeping all of it ready for the grids.

#include <sqlite3.h>

#include <QFile>
#include <QTemporaryDir>

#include "Compare.h"
#include "data/Connection.h"
#include "data/Recordset.h"

namespace {

using namespace tavrelin;
constexpr int Players = 50000;

const QString Sorted = QStringLiteral("SELECT * FROM Players ORDER BY LastName");
const QString Unsorted = QStringLiteral("SELECT * FROM Players");

/// A file with so many players, twenty columns each.
class Roster {
 public:
  explicit Roster(int players) {
    const QString path = folder_.filePath(QStringLiteral("Roster.mdb"));
    sqlite3* db = nullptr;
    sqlite3_open(QFile::encodeName(path).constData(), &db);
    sqlite3_exec(db, "PRAGMA application_id = 0x5456524C", nullptr, nullptr, nullptr);
    sqlite3_close(db);
    connection.Open(QStringLiteral("DBQ=%1;").arg(path));
    connection.Execute(QStringLiteral(
        "CREATE TABLE Players (PlayerID TEXT(6), FirstName TEXT(20), LastName TEXT(25), Category "
        "VARCHAR(2), CardNumber TEXT(6), CardYear TEXT(4), Telephone TEXT(10), AddressOne "
        "TEXT(40), "
        "City TEXT(30), State TEXT(2), ZipCode TEXT(10), BirthDate DATETIME, Longevity INTEGER, "
        "Remarks TEXT(255), Average DOUBLE, CellPhone CHAR(10), Email VARCHAR(60), EmergencyInfo "
        "VARCHAR(255), Awards VARCHAR(255), MembershipType CHAR(1))"));
    Batch all(connection);
    for (int i = 0; i < players; ++i) Insert(i);
  }

  Connection connection;

 private:
  void Insert(int i) {
    connection.Execute(
        QStringLiteral(
            "INSERT INTO Players VALUES(?, 'Christine', ?, 'EW', ?, '2024', '8145550123', "
            "'1200 Peach Street', 'Erie', 'PA', '16501', #5/17/1951#, 12, Null, ?, "
            "'8145550188', 'someone@example.org', Null, '', 'S')"),
        {Value(QStringLiteral("%1").arg(i, 6, 10, QLatin1Char('0'))),
         Value(QStringLiteral("Name%1").arg((i * 7919) % 100003)),
         Value(QStringLiteral("PA%1").arg(i % 9999)), Value(30 + (i % 500) / 10.0)});
  }
  QTemporaryDir folder_;
};

Connection& Club() {
  static Roster roster(Players);
  return roster.connection;
}

void BareLoop(const QString& query) {
  sqlite3_stmt* statement = nullptr;
  const QByteArray sql = query.toUtf8();
  sqlite3_prepare_v2(Club().Handle(), sql.constData(), -1, &statement, nullptr);
  qint64 bytes = 0;
  double sum = 0;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    const int columns = sqlite3_column_count(statement);
    for (int column = 0; column < columns; ++column) {
      switch (sqlite3_column_type(statement, column)) {
        case SQLITE_INTEGER:
        case SQLITE_FLOAT:
          sum += sqlite3_column_double(statement, column);
          break;
        case SQLITE_TEXT:
          benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
          bytes += sqlite3_column_bytes(statement, column);
          break;
        default:
          break;
      }
    }
  }
  sqlite3_finalize(statement);
  benchmark::DoNotOptimize(bytes);
  benchmark::DoNotOptimize(sum);
}

void Fetch(const QString& query) {
  Recordset rows;
  rows.Open(query, Club(), Recordset::Lock::Optimistic);
  benchmark::DoNotOptimize(rows.RecordCount());
}

void FetchRoster(benchmark::State& state) {
  Club();
  Compare(state, {}, {[] { Fetch(Unsorted); }, [] { BareLoop(Unsorted); }, {}});
}
BENCHMARK(FetchRoster)->Name("Roster of 50,000 fetched")->Iterations(9);

void FetchSortedRoster(benchmark::State& state) {
  Club();
  Compare(state, {}, {[] { Fetch(Sorted); }, [] { BareLoop(Sorted); }, {}});
}
BENCHMARK(FetchSortedRoster)->Name("Roster of 50,000 fetched by name")->Iterations(9);

void SortByName(benchmark::State& state) {
  Recordset rows;
  rows.Open(Unsorted, Club());
  Compare(state, {},
          {[&] { rows.SetSort("LastName ASC"); }, [] { BareLoop(Sorted); },
           [&] { rows.SetSort("LastName DESC"); }});
}
BENCHMARK(SortByName)->Name("Roster of 50,000 turned round by name")->Iterations(9);

void SortThatStandsAlready(benchmark::State& state) {
  Recordset rows;
  rows.Open(Sorted, Club());
  Compare(state, {}, {[&] { rows.SetSort("LastName ASC"); }, [] { BareLoop(Sorted); }, {}});
}
BENCHMARK(SortThatStandsAlready)->Name("Roster of 50,000 sorted as it is already")->Iterations(9);

void FindTheLast(benchmark::State& state, bool indexed) {
  const QString criterion = QString("PlayerID = '%1'").arg(Players - 1, 6, 10, QChar('0'));
  Recordset rows;
  rows.Open(Unsorted, Club());
  if (indexed) rows.Optimize("PlayerID");
  const auto find = [&] {
    rows.MoveFirst();
    rows.Find(criterion);
    if (rows.AtEnd()) state.SkipWithError("not found");
  };
  Compare(state, {}, {find, [&] { BareLoop(Unsorted + " WHERE " + criterion); }, {}});
}

void FindByWalking(benchmark::State& state) {
  FindTheLast(state, false);
}
BENCHMARK(FindByWalking)->Name("Last of 50,000 found without an index")->Iterations(25);

void FindByIndex(benchmark::State& state) {
  FindTheLast(state, true);
}
BENCHMARK(FindByIndex)->Name("Last of 50,000 found by index")->Iterations(25);

}  // namespace
