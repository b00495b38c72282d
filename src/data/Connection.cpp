#include "data/Connection.h"

#include <sqlite3.h>

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "basic/Error.h"
#include "data/CommitGuard.h"
#include "data/ConnectionParts.h"
#include "data/DataSource.h"
#include "data/Schema.h"
#include "data/SqlFile.h"
#include "data/SqlFunctions.h"
#include "data/TableRebuild.h"

namespace tavrelin {
namespace {

constexpr int WaitMilliseconds = 3000;
constexpr size_t KeptStatements = 60;

[[noreturn]] void RefuseFile(const QString& path, const QString& why) {
  throw Error(errors::FileUnusable,
              QStringLiteral("The file %1 %2").arg(QDir::toNativeSeparators(path), why));
}

// Before SQLite opens it: a file that is not there would be made, an empty one be taken for new.
void CheckPresence(const QString& path) {
  const QFileInfo info(path);
  if (!info.exists()) {
    RefuseFile(path, QStringLiteral("does not exist. Check the path under Setup, Database."));
  }
  if (info.isDir()) {
    RefuseFile(path, QStringLiteral("is a folder. Choose the club's file in it."));
  }
  if (!info.isReadable()) {
    RefuseFile(path, QStringLiteral("may not be read. Ask its owner for the right to read it."));
  }
  if (info.size() == 0) {
    RefuseFile(path, QStringLiteral("is empty. Put the latest backup in its place."));
  }
}

// Called only when SQLite has refused the file: opening a file beside SQLite would drop its locks.
[[noreturn]] void RefuseStrangeFile(const QString& path) {
  QFile file(path);
  QByteArray head;
  if (file.open(QIODevice::ReadOnly)) head = file.read(64);
  if (head.contains("Standard Jet DB") || head.contains("Standard ACE DB")) {
    RefuseFile(path, QStringLiteral("is a Microsoft Access file, which is not yet readable here. "
                                    "Choose a club's file made by this program."));
  }
  RefuseFile(path,
             QStringLiteral("is not a club's database, or it is damaged. Choose another file, "
                            "or put the latest backup in its place."));
}

qint64 AskNumber(sqlite3* handle, const char* pragma) {
  Statement statement(handle, QStringLiteral("PRAGMA ") + QLatin1String(pragma));
  return statement.Step() ? statement.Whole(0) : 0;
}

void CheckMark(sqlite3* handle, const QString& path) {
  const qint64 mark = AskNumber(handle, "application_id");
  if (mark != 0 && mark != ClubApplicationId) {
    RefuseFile(path, QStringLiteral("belongs to another program. Choose a club's file."));
  }
  if (AskNumber(handle, "user_version") > ClubFileFormat) {
    RefuseFile(path,
               QStringLiteral("was made by a newer program. Install the newest version to open "
                              "it."));
  }
}

void SetUp(sqlite3* handle) {
  sqlite3_extended_result_codes(handle, 1);
  sqlite3_busy_timeout(handle, WaitMilliseconds);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  RegisterSqlFunctions(handle);
  RunSql(handle, QStringLiteral("PRAGMA synchronous=EXTRA; PRAGMA locking_mode=NORMAL; "
                                "PRAGMA foreign_keys=ON; PRAGMA trusted_schema=OFF; "
                                "PRAGMA cell_size_check=ON; PRAGMA mmap_size=0"));
}

void SetUpFile(sqlite3* handle, const QString& path) {
  try {
    SetUp(handle);
    RunSql(handle, QStringLiteral("PRAGMA journal_mode=DELETE"));
    CheckMark(handle, path);
  } catch (const Error&) {
    if ((sqlite3_errcode(handle) & 0xff) == SQLITE_NOTADB) RefuseStrangeFile(path);
    throw;
  }
}

sqlite3* OpenHandle(const QString& name) {
  sqlite3* handle = nullptr;
  const int rc = sqlite3_open_v2(QFile::encodeName(name).constData(), &handle,
                                 SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  if (rc == SQLITE_OK) return handle;
  sqlite3_close(handle);
  RefuseFile(name, QStringLiteral("cannot be opened: %1.").arg(QLatin1String(sqlite3_errstr(rc))));
}

}  // namespace

Connection::Private::~Private() {
  for (Kept& statement : kept) sqlite3_finalize(statement.statement);
  catalogue.reset();
  sqlite3_close(handle);
}

void Connection::Private::OpenFile(const QString& path) {
  CheckPresence(path);
  claim = FileClaim(path);
  file = path;
  handle = OpenHandle(path);
  SetUpFile(handle, path);
  GuardCommits(handle);
  catalogue = std::make_unique<Catalogue>(handle);
}

void Connection::Private::OpenCopy(const QString& path) {
  CheckPresence(path);
  file = path;
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> source(OpenHandle(path), sqlite3_close);
  SetUpFile(source.get(), path);
  handle = OpenHandle(QStringLiteral(":memory:"));
  CopyAllPages(source.get(), handle);
  SetUp(handle);
  catalogue = std::make_unique<Catalogue>(handle);
}

const Connection::Private::Kept& Connection::Private::Keep(const QString& sql, bool withRowNumber) {
  const int layout = catalogue->Version();
  const auto same = [&](const Kept& k) { return k.withRowNumber == withRowNumber && k.sql == sql; };
  const auto found = std::find_if(kept.begin(), kept.end(), same);
  if (found != kept.end() && found->layout == layout) {
    kept.splice(kept.begin(), kept, found);
    return kept.front();
  }
  if (found != kept.end()) {
    sqlite3_finalize(found->statement);
    kept.erase(found);
  }
  Kept fresh{sql, withRowNumber, layout, Translate(sql, *catalogue, withRowNumber), nullptr};
  if (sqlite3_prepare_v3(handle, fresh.translation.sql.toUtf8().constData(), -1,
                         SQLITE_PREPARE_PERSISTENT, &fresh.statement, nullptr) != SQLITE_OK) {
    ThrowDatabaseError(handle);
  }
  kept.push_front(std::move(fresh));
  if (kept.size() > KeptStatements) {
    sqlite3_finalize(kept.back().statement);
    kept.pop_back();
  }
  return kept.front();
}

void Connection::Private::CheckBatch() const {
  if (batches == 0 || sqlite3_get_autocommit(handle) == 0) return;
  throw Error(
      errors::FileUnusable,
      QStringLiteral("None of these changes were saved, because the disk refused one of them. "
                     "Make room on the disk and try again."));
}

void Connection::Private::Run(const QString& sql, bool withRowNumber,
                              const QList<Value>& parameters, const Work& work) {
  CheckBatch();
  if (!parameters.isEmpty()) {
    const Kept& known = Keep(sql, withRowNumber);
    Statement statement(handle, known.statement);
    statement.BindAll(parameters);
    return work(known.translation, &statement);
  }
  const Translation translation = Translate(sql, *catalogue, withRowNumber);
  if (translation.kind == Translation::Kind::Rebuild) return work(translation, nullptr);
  Statement statement(handle, translation.sql);
  statement.BindAll(parameters);
  work(translation, &statement);
}

Connection::Connection() = default;
Connection::~Connection() = default;

void Connection::Open(const QString& connectString) {
  Close();
  auto opened = std::make_unique<Private>();
  opened->OpenFile(FileOfConnectString(connectString));
  d_ = std::move(opened);
}

void Connection::OpenSnapshot(const QString& connectString) {
  Close();
  auto opened = std::make_unique<Private>();
  opened->OpenCopy(FileOfConnectString(connectString));
  d_ = std::move(opened);
}

void Connection::Close() {
  d_.reset();
}

bool Connection::IsOpen() const {
  return d_ != nullptr;
}

QString Connection::FilePath() const {
  return d_ ? d_->file : QString();
}

sqlite3* Connection::Handle() const {
  return d_ ? d_->handle : nullptr;
}

qint64 Connection::Execute(const QString& sql, const QList<Value>& parameters) {
  if (!d_) throw Error(errors::RecordState, QStringLiteral("No file is open."));
  qint64 changed = 0;
  d_->Run(sql, false, parameters, [&](const Translation& translation, Statement* statement) {
    if (translation.kind == Translation::Kind::Rebuild) {
      return RebuildTable(d_->handle, translation.rebuild);
    }
    while (statement->Step()) {
    }
    if (translation.kind == Translation::Kind::Change) changed = sqlite3_changes64(d_->handle);
  });
  return changed;
}

}  // namespace tavrelin
