#pragma once

#include <exception>
#include <QByteArray>
#include <QString>

namespace tavrelin {

/// A failure: what every layer throws, and what CSError shows to the operator.
///
/// `number` is one of the numbers below, or SQLite's result code plus `errors::Database`.
/// `description` is a sentence for the operator; it is never empty.
/// `source` is the trail of procedures an error came through (see CSError::Raise); usually empty.
class Error : public std::exception {
 public:
  Error(int number, QString description, QString source = {});

  int number() const noexcept { return number_; }
  const QString& description() const noexcept { return description_; }
  const QString& source() const noexcept { return source_; }
  const char* what() const noexcept override { return utf8_.constData(); }

 private:
  int number_;
  QString description_;
  QString source_;
  QByteArray utf8_;
};

/// Numbers of the failures that the program itself raises. The first ones are Basic's own.
namespace errors {
inline constexpr int Overflow = 6;
inline constexpr int Subscript = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int Disk = 57;  ///< the disk or the stick failed to read or to write
inline constexpr int File = 75;
inline constexpr int NoObject = 91;         ///< an object that an operation needs was not set
inline constexpr int Printer = 482;         ///< the printer failed or took no document
inline constexpr int AlreadyThere = 3010;   ///< a table or a column of that name exists
inline constexpr int RecordState = 3021;    ///< no current record, or the recordset is closed
inline constexpr int NoSuchTable = 3078;    ///< a table that the file does not have
inline constexpr int NoSuchField = 3265;    ///< a field that the recordset does not have
inline constexpr int FieldTooSmall = 3163;  ///< a text or number its column cannot hold
inline constexpr int DataTypeMismatch = 3464;
inline constexpr int Syntax = 3075;
inline constexpr int FileInUse = 3045;     ///< another copy of the program has it open
inline constexpr int FileDamaged = 3049;   ///< may be looked at and copied, and no more
inline constexpr int FileUnusable = 3343;  ///< not a database, replaced, or newer
inline constexpr int ForeignRules = 3356;  ///< the file holds triggers or views that are not ours
inline constexpr int Database = 10000;     ///< plus SQLite's extended result code
}  // namespace errors

}  // namespace tavrelin
