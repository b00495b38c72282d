#include "data/SqlErrors.h"

#include <sqlite3.h>

#include <QDir>
#include <QString>

#include "data/CommitGuard.h"

namespace tavrelin {
namespace {

constexpr char ErrorMark = '\x01';

// SQLite's own words for the mistakes in a statement, and what stands behind the colon.
struct Mistake {
  const char* words;
  int number;
  const char* sentence;
};

constexpr Mistake Mistakes[] = {
    {"no such table: ", errors::Database + SQLITE_ERROR, "The file has no table \"%1\"."},
    {"no such column: ", errors::NoSuchField, "There is no field \"%1\"."},
    {"ambiguous column name: ", errors::Syntax, "More than one table has the field \"%1\"."},
    {"duplicate column name: ", errors::Database + SQLITE_ERROR,
     "The table already has a field \"%1\"."},
};

void ThrowMistake(const QString& message) {
  for (const Mistake& mistake : Mistakes) {
    if (message.startsWith(QLatin1String(mistake.words))) {
      const QString name = message.mid(static_cast<qsizetype>(qstrlen(mistake.words)));
      throw Error(mistake.number, QString::fromLatin1(mistake.sentence).arg(name));
    }
  }
}

void ThrowEncoded(const QByteArray& message) {
  if (message.isEmpty() || message.front() != ErrorMark) return;
  const qsizetype end = message.indexOf(ErrorMark, 1);
  throw Error(message.mid(1, end - 1).toInt(), QString::fromUtf8(message.mid(end + 1)));
}

QString Sentence(int code, const QString& file, const QString& message) {
  switch (code & 0xff) {
    case SQLITE_FULL:
      return QStringLiteral(
          "The disk is full, and nothing was written. Make room on it and try again.");
    case SQLITE_READONLY:
      return QStringLiteral(
                 "The file %1 can only be read. Copy it to a folder where you may write, and open "
                 "the copy.")
          .arg(file);
    case SQLITE_CORRUPT:
      return QStringLiteral(
                 "The file %1 is damaged. Close the program and put the latest backup in its "
                 "place.")
          .arg(file);
    case SQLITE_NOTADB:
      return QStringLiteral("The file %1 is not a club's database. Choose another file.").arg(file);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return QStringLiteral(
                 "The file %1 is being used by another program. Close that program and try again.")
          .arg(file);
    case SQLITE_CANTOPEN:
      return QStringLiteral(
                 "The file %1 cannot be opened. Check that the folder exists and that you may "
                 "write "
                 "there.")
          .arg(file);
    case SQLITE_IOERR:
      return QStringLiteral(
                 "The disk failed while the file %1 was used, and the change was not saved. Check "
                 "the disk and try again.")
          .arg(file);
    case SQLITE_NOMEM:
      return QStringLiteral("The computer has run out of memory. Close other programs.");
    case SQLITE_TOOBIG:
      return QStringLiteral("The text is too long to be stored.");
    case SQLITE_CONSTRAINT:
      return QStringLiteral("The record was refused: %1.").arg(message);
    default:
      return QStringLiteral("The statement cannot be carried out: %1.").arg(message);
  }
}

[[noreturn]] void ThrowMoved(const QString& file) {
  throw Error(errors::FileUnusable,
              QStringLiteral("The file %1 was replaced, moved, deleted or cut short while it was "
                             "open, and nothing was written. Leave the screen and open the file "
                             "again.")
                  .arg(file));
}

[[noreturn]] void ThrowConstraint(int code, const QString& file, const QString& message) {
  switch (code) {
    case SQLITE_CONSTRAINT_COMMITHOOK:
      ThrowMoved(file);
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_ROWID:
      throw Error(errors::Database + code,
                  QStringLiteral("There is already a record with the same key (%1).")
                      .arg(message.section(QStringLiteral(": "), 1)));
    case SQLITE_CONSTRAINT_NOTNULL:
      throw Error(
          errors::Database + code,
          QStringLiteral("%1 must not be empty.").arg(message.section(QStringLiteral(": "), 1)));
    default:
      throw Error(errors::Database + code, Sentence(code, file, message));
  }
}

}  // namespace

void ThrowDatabaseError(sqlite3* handle) {
  const int code = sqlite3_extended_errcode(handle);
  const QByteArray utf8 = sqlite3_errmsg(handle);
  ThrowEncoded(utf8);
  const QString message = QString::fromUtf8(utf8);
  const char* path = sqlite3_db_filename(handle, "main");
  const QString file = QDir::toNativeSeparators(QString::fromUtf8(path ? path : ""));
  if (code == SQLITE_ERROR && IsFileGone(handle)) ThrowMoved(file);
  if (code == SQLITE_ERROR) ThrowMistake(message);
  if (code == SQLITE_READONLY_DBMOVED) ThrowMoved(file);
  const int primary = code & 0xff;
  if (primary == SQLITE_CONSTRAINT) ThrowConstraint(code, file, message);
  const bool unusable = primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB;
  throw Error(unusable ? errors::FileUnusable : errors::Database + code,
              Sentence(code, file, message));
}

QByteArray EncodeError(const Error& error) {
  return ErrorMark + QByteArray::number(error.number()) + ErrorMark + error.description().toUtf8();
}

}  // namespace tavrelin
