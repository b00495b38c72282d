#include "data/Connection.h"

#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

#include <QDir>
#include <QFileInfo>

#include "data/FileClaim.h"
#include "support/ClubFixture.h"

namespace tavrelin {
namespace {

struct ConnectionTest : ClubFixture {
  ConnectionTest() { Run("CREATE TABLE Players (PlayerID TEXT(6), LastName TEXT(25))"); }

  static QString Sentence(const std::function<void()>& work) {
    try {
      work();
    } catch (const Error& error) {
      return error.description();
    }
    return QStringLiteral("(nothing was refused)");
  }
  QString OpenSentence(const QString& file) {
    return Sentence([&] { Connection().Open(QStringLiteral("DBQ=%1;").arg(file)); });
  }
  QString Write(const char* name, const QByteArray& content) {
    QFile file(folder.filePath(QLatin1String(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }
  void Insert() { Run("INSERT INTO Players VALUES('000001', 'Smith')"); }
};

TEST(ConnectString, FollowsTheExtensionInThePath) {
  EXPECT_EQ(ConnectStringFor("C:\\A.mdb"),
            "DBQ=C:\\A.mdb;Driver={Microsoft Access Driver (*.mdb)};");
  EXPECT_EQ(ConnectStringFor("C:\\A.accdb"),
            "DBQ=C:\\A.accdb;Driver={Microsoft Access Driver (*.mdb, *.accdb)};");
  EXPECT_EQ(ConnectStringFor("C:\\a.mdb\\B.accdb"),
            "DBQ=C:\\a.mdb\\B.accdb;Driver={Microsoft Access Driver (*.mdb)};");
  EXPECT_EQ(ConnectStringFor("C:\\A.MDB"), "uid=;pwd=;dsn=Tavrelin");
  EXPECT_EQ(ConnectStringFor(""), "uid=;pwd=;dsn=Tavrelin");
}

TEST_F(ConnectionTest, OpensByTheConnectionTextAndKeepsWhatIsWritten) {
  Insert();
  connection.Open(ConnectStringFor(path));
  EXPECT_EQ(connection.FilePath(), path);
  EXPECT_EQ(Ask("SELECT LastName FROM Players"), Value("Smith"));
  connection.Close();
  EXPECT_FALSE(connection.IsOpen());
  EXPECT_THROW(Insert(), Error);
}

TEST_F(ConnectionTest, TheFileIsKeptInTheSafestWay) {
  struct Case {
    const char* pragma;
    qint64 value;
  };
  for (const Case& c : {Case{"synchronous", 3}, Case{"foreign_keys", 1}, Case{"trusted_schema", 0},
                        Case{"cell_size_check", 1}, Case{"mmap_size", 0}}) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection.Handle(), (std::string("PRAGMA ") + c.pragma).c_str(), -1,
                       &statement, nullptr);
    sqlite3_step(statement);
    EXPECT_EQ(sqlite3_column_int64(statement, 0), c.value) << c.pragma;
    sqlite3_finalize(statement);
  }
  int defensive = 0;
  sqlite3_db_config(connection.Handle(), SQLITE_DBCONFIG_DEFENSIVE, -1, &defensive);
  EXPECT_EQ(defensive, 1);
  EXPECT_EQ(Raw("PRAGMA journal_mode"), "delete");
}

TEST_F(ConnectionTest, FilesThatAreNoClubFilesAreRefusedWithASentence) {
  EXPECT_TRUE(OpenSentence(folder.filePath("Nowhere.mdb")).contains("does not exist"));
  EXPECT_TRUE(OpenSentence(folder.path()).contains("is a folder"));
  EXPECT_TRUE(OpenSentence(Write("Empty.mdb", "")).contains("is empty"));
  EXPECT_TRUE(OpenSentence(Write("Text.mdb", QByteArray(5000, 'x'))).contains("not a club's"));
  const QByteArray jet = QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(5000, '\0');
  EXPECT_TRUE(OpenSentence(Write("Old.mdb", jet)).contains("not yet readable"));
  const QByteArray ace = QByteArray("\0\1\0\0Standard ACE DB\0", 20) + QByteArray(5000, '\0');
  EXPECT_TRUE(OpenSentence(Write("New.accdb", ace)).contains("not yet readable"));
  EXPECT_TRUE(Sentence([] { Connection().Open("uid=;pwd="); }).contains("No database is chosen"));
}

TEST_F(ConnectionTest, ANewerProgramsFileAndAnotherProgramsFileAreRefused) {
  connection.Close();
  Raw("PRAGMA user_version = 2");
  EXPECT_TRUE(OpenSentence(path).contains("newer program"));
  Raw("PRAGMA user_version = 1; PRAGMA application_id = 99");
  EXPECT_TRUE(OpenSentence(path).contains("another program"));
  Raw("PRAGMA application_id = 0");
  connection.Open(ConnectText());
}

TEST_F(ConnectionTest, ADamagedFileIsToldAndNotTouched) {
  Insert();
  connection.Close();
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  file.seek(4096);
  file.write(QByteArray(4096, '\xff'));
  file.close();
  connection.Open(ConnectText());
  const QString sentence = Sentence([&] { Insert(); });
  EXPECT_TRUE(sentence.contains("is damaged")) << sentence.toStdString();
}

TEST_F(ConnectionTest, ADataSourceNamesTheFile) {
  const QString ini = Write("odbc.ini",
                            "[Other]\nDatabase = /x\n\n[Tavrelin]\nDriver = SQLite3\n"
                            "Database = " +
                                path.toUtf8() + "\n[NoFile]\nDriver = x\n");
  qputenv("ODBCINI", ini.toUtf8());
  Connection byName;
  byName.Open("uid=;pwd=;dsn=Tavrelin");
  EXPECT_EQ(byName.FilePath(), path);
  EXPECT_EQ(Sentence([] { Connection().Open("uid=;pwd=;dsn=Nobody"); }),
            "[IM002] Data source name not found and no default driver specified");
  EXPECT_TRUE(Sentence([] { Connection().Open("dsn=NoFile"); }).contains("names no file"));
  qunsetenv("ODBCINI");
}

TEST_F(ConnectionTest, AnOpenFileThatWasMovedDeletedReplacedOrCutShortTakesNoMoreRows) {
  const QString aside = folder.filePath("Aside.mdb");
  const std::function<void()> harms[] = {
      [&] { QFile::rename(path, aside); },
      [&] { QFile::remove(path); },
      [&] {
        QFile::copy(path, aside);
        rename(qPrintable(aside), qPrintable(path));
      },
      [&] { QFile::resize(path, 0); },
      [&] { QFile::resize(path, 4096); },
  };
  for (const auto& harm : harms) {
    QFile::remove(path);
    QFile::remove(aside);
    Raw("CREATE TABLE Players (PlayerID TEXT(6), LastName TEXT(25)); CREATE TABLE More (X)");
    connection.Open(ConnectText());
    Insert();
    const QByteArray before = [&] {
      QFile file(path);
      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
      return file.readAll();
    }();
    connection.Open(ConnectText());
    EXPECT_EQ(Ask("SELECT COUNT(*) FROM Players"), Value(1));
    harm();
    const QString sentence = Sentence([&] { Insert(); });
    const bool cut = QFileInfo(path).exists() && QFileInfo(path).size() < before.size();
    EXPECT_TRUE(cut || sentence.contains("was replaced, moved, deleted")) << sentence.toStdString();
    EXPECT_THROW(Insert(), Error);
    const QString survivor = QFile::exists(aside) ? aside : path;
    QFile file(survivor);
    if (file.open(QIODevice::ReadOnly) && file.size() == before.size()) {
      EXPECT_EQ(file.readAll(), before);
    }
    connection.Close();
  }
}

TEST_F(ConnectionTest, ASecondCopyOfTheProgramIsRefused) {
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    // The child is the second copy: it has not inherited the claim, only the open description.
    const int lock = ::open(qPrintable(path + ".lock"), 2);
    _exit(lock >= 0 && flock(lock, LOCK_EX | LOCK_NB) != 0 ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
}

TEST_F(ConnectionTest, AFileHeldByAnotherCopyIsRefusedUntilItIsLetGo) {
  connection.Close();
  int ready[2];
  int done[2];
  ASSERT_EQ(pipe(ready) | pipe(done), 0);
  const pid_t other = fork();
  if (other == 0) {
    const int lock = ::open(qPrintable(path + ".lock"), 0102, 0666);
    char byte = flock(lock, LOCK_EX | LOCK_NB) == 0 ? 'y' : 'n';
    (void)!write(ready[1], &byte, 1);
    (void)!read(done[0], &byte, 1);
    _exit(0);
  }
  char byte = 0;
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  ASSERT_EQ(byte, 'y');
  EXPECT_TRUE(OpenSentence(path).contains("another copy of the program"));
  EXPECT_THROW(FileClaim{path}, Error);
  Connection reports;
  reports.OpenSnapshot(ConnectText());
  EXPECT_TRUE(reports.IsOpen());
  ASSERT_EQ(write(done[1], &byte, 1), 1);
  waitpid(other, nullptr, 0);
  connection.Open(ConnectText());
  EXPECT_TRUE(QFileInfo::exists(path + ".lock"));
  connection.Close();
  EXPECT_FALSE(QFileInfo::exists(path + ".lock"));
}

TEST_F(ConnectionTest, ConnectionsOfOneProcessShareTheClaim) {
  Connection second;
  second.Open(ConnectText());
  connection.Close();
  EXPECT_TRUE(QFileInfo::exists(path + ".lock"));
  const FileClaim window(path);
  second.Close();
  EXPECT_TRUE(QFileInfo::exists(path + ".lock"));
  connection.Open(ConnectText());
}

TEST_F(ConnectionTest, ALockLeftByACrashDoesNotBlock) {
  connection.Close();
  Write("Club.mdb.lock", "1234");
  connection.Open(ConnectText());
  EXPECT_TRUE(connection.IsOpen());
}

TEST_F(ConnectionTest, AFileThatAnotherProgramIsWritingIsTold) {
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(qPrintable(path), &other), SQLITE_OK);
  sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
  EXPECT_TRUE(Sentence([&] { Insert(); }).contains("used by another program"));
  sqlite3_close(other);
  Insert();
  EXPECT_EQ(Ask("SELECT COUNT(*) FROM Players"), Value(1));
}

TEST_F(ConnectionTest, ASnapshotShowsTheFileAndWritesNothingToIt) {
  Insert();
  Connection reports;
  reports.OpenSnapshot(ConnectText());
  Recordset rows;
  rows.Open("SELECT LastName + '!' AS L FROM Players WHERE LastName LIKE 'SM%'", reports);
  EXPECT_EQ(Column(rows, "L"), "Smith!");
  reports.Execute("DELETE FROM Players");
  EXPECT_EQ(Ask("SELECT COUNT(*) FROM Players"), Value(1));
  Insert();
  rows.Open("SELECT * FROM Players", reports);
  EXPECT_EQ(rows.RecordCount(), 0);
  EXPECT_EQ(reports.FilePath(), path);
}

}  // namespace
}  // namespace tavrelin
