#include "command/CommandLine.h"

#include <array>
#include <charconv>
#include <cmath>
#include <QFileInfo>
#include <QLocale>
#include <QTextStream>

#include "basic/Conversions.h"
#include "basic/Error.h"
#include "data/Connection.h"
#include "data/DataSource.h"
#include "data/Recordset.h"

namespace tavrelin {
namespace {

constexpr QLatin1String Help("--help");

void ListCommands(const QList<Command>& commands, QTextStream& out) {
  out << "Usage: tavrelinctl COMMAND ARGUMENTS\n\n";
  for (const Command& command : commands)
    out << "  " << command.usage << "\n      " << command.purpose << '\n';
  out << "\nTables are written with tabs between the cells and a header line. Exit code: 0 done, "
         "1 refused, 2 wrong usage.\n";
}

void TellUsage(const Command& command, QTextStream& out) {
  out << "Usage: tavrelinctl " << command.usage << '\n' << command.purpose << '\n';
}

int RunCommand(const Command& command, const QStringList& arguments, QTextStream& out,
               QTextStream& err) {
  try {
    if (arguments.size() < command.least || arguments.size() > command.most) throw WrongUsage();
    return command.run(arguments, out, err);
  } catch (const WrongUsage&) {
    TellUsage(command, err);
    return exits::WrongUsage;
  } catch (const Error& error) {
    err << error.description() << '\n';
  } catch (const std::exception& failure) {
    err << QString::fromUtf8(failure.what()) << '\n';
  }
  return exits::Refused;
}

}  // namespace

int RunCommandLine(const QList<Command>& commands, const QStringList& arguments, QTextStream& out,
                   QTextStream& err) {
  if (arguments.isEmpty()) {
    ListCommands(commands, err);
    return exits::WrongUsage;
  }
  if (arguments[0] == Help) {
    ListCommands(commands, out);
    return exits::Done;
  }
  for (const Command& command : commands) {
    if (command.name != arguments[0]) continue;
    if (!arguments.contains(Help)) return RunCommand(command, arguments.sliced(1), out, err);
    TellUsage(command, out);
    return exits::Done;
  }
  err << "There is no command \"" << arguments[0] << "\".\n\n";
  ListCommands(commands, err);
  return exits::WrongUsage;
}

void Refuse(const Refusal& refusal) {
  throw Error(errors::RecordState, refusal.sentence);
}

TextTable::TextTable(QTextStream& out, const QStringList& header) : out_(out) {
  out_ << header.join(QLatin1Char('\t')) << '\n';
}

void TextTable::Row(const QList<Value>& cells) {
  QStringList texts;
  for (const Value& cell : cells) texts += PlainText(cell);
  out_ << texts.join(QLatin1Char('\t')) << '\n';
}

namespace {

/// With the digits that make it this single and no other: 0.6666667, not those of the double in
/// which it is passed on.
QString SingleText(double number) {
  std::array<char, 64> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), static_cast<float>(number),
                                 std::chars_format::fixed);
  return QString::fromLatin1(text.data(), end.ptr - text.data());
}

Value CellOf(const Recordset& rows, int position, int field) {
  const Value cell = rows.CellAt(position, field);
  if (cell.IsNull() || rows.Fields()[field].type != FieldType::Single) return cell;
  return SingleText(cell.ToNumber());
}

}  // namespace

QString PlainText(const Value& value) {
  if (value.kind() == Value::Kind::Date) return StoredDate(value.ToDate());
  if (value.kind() == Value::Kind::Floating) {
    return QString::number(value.ToNumber(), 'f', QLocale::FloatingPointShortest);
  }
  QString text = value.ToText();
  for (const char ending : {'\t', '\r', '\n'}) text.replace(QLatin1Char(ending), QLatin1Char(' '));
  return text;
}

void WriteRecordset(QTextStream& out, const Recordset& rows, const QStringList& fields) {
  QStringList header = fields;
  if (header.isEmpty()) {
    for (const Field& field : rows.Fields()) header += field.name;
  }
  QList<int> places;
  for (const QString& name : header) {
    places += rows.FieldIndex(name);
    if (places.last() < 0) {
      throw Error(errors::NoSuchField, QStringLiteral("There is no field \"%1\".").arg(name));
    }
  }
  TextTable table(out, header);
  for (int position = 1; position <= rows.RecordCount(); ++position) {
    QList<Value> cells;
    for (const int place : places) cells += CellOf(rows, position, place);
    table.Row(cells);
  }
}

QString FileConnectString(const QString& file) {
  return ConnectStringOfFile(QFileInfo(PlatformPath(file)).absoluteFilePath());
}

}  // namespace tavrelin
