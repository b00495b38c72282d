#include "basic/Error.h"
#include "data/DialectWriter.h"

namespace tavrelin {
namespace {

Translation Layout(const QString& sql) {
  Translation translation;
  translation.kind = Translation::Kind::Layout;
  translation.sql = sql;
  return translation;
}

bool IsNumbering(const QString& declared) {
  return ParseColumnType(declared).type == FieldType::AutoNumber;
}

}  // namespace

// Texts bring their own order, CHAR also without regard to blanks behind; yes/no knows no null.
QString FileDeclaration(const QString& declared) {
  const ColumnType type = ParseColumnType(declared);
  if (type.type == FieldType::AutoNumber) {
    return QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT");
  }
  const QString stored = StoredDeclaration(declared);
  if (type.type == FieldType::YesNo) return stored + QStringLiteral(" NOT NULL DEFAULT 0");
  if (type.type != FieldType::Text && type.type != FieldType::Memo) return stored;
  return stored +
         (type.fixed ? QStringLiteral(" COLLATE RTRIM") : QStringLiteral(" COLLATE NOCASE"));
}

// "VARCHAR(60)", "STRING (40)"; a name that is no type is refused.
QString DialectWriter::TakeType() {
  QString declared = TakeName("a type");
  if (TakeIf("(")) {
    declared += u'(' + Take().text + u')';
    Expect(")");
  }
  if (!ParseColumnType(declared).known) {
    throw Error(errors::Syntax, QStringLiteral("\"%1\" is no type of field.").arg(declared));
  }
  return declared;
}

QString DialectWriter::ColumnDefinition(bool& numbered) {
  const QString name = TakeName("a column");
  const QString declared = TakeType();
  numbered = numbered || IsNumbering(declared);
  QString sql = QuotedName(name) + u' ' + FileDeclaration(declared);
  const bool numbering = IsNumbering(declared);
  for (;;) {
    if (TakeIf("NOT")) {
      Expect("NULL");
      sql += QStringLiteral(" NOT NULL");
    } else if (TakeIf("PRIMARY")) {
      Expect("KEY");
      if (!numbering) sql += QStringLiteral(" PRIMARY KEY");
    } else if (TakeIf("UNIQUE")) {
      sql += QStringLiteral(" UNIQUE");
    } else if (TakeIf("DEFAULT")) {
      sql += QStringLiteral(" DEFAULT ") + Unary().sql;
    } else {
      return sql;
    }
  }
}

QString DialectWriter::NameList() {
  QStringList names;
  Expect("(");
  do {
    names.append(QuotedName(TakeName("a column")));
  } while (TakeIf(","));
  Expect(")");
  return names.join(QStringLiteral(", "));
}

QString DialectWriter::TableConstraint() {
  Expect("CONSTRAINT");
  QString sql = QStringLiteral("CONSTRAINT ") + QuotedName(TakeName("a key"));
  if (TakeIf("PRIMARY")) {
    Expect("KEY");
    sql += QStringLiteral(" PRIMARY KEY (");
  } else {
    Expect("UNIQUE");
    sql += QStringLiteral(" UNIQUE (");
  }
  return sql + NameList() + u')';
}

Translation DialectWriter::Create() {
  if (TakeIf("TABLE")) return CreateTable();
  const bool unique = TakeIf("UNIQUE");
  Expect("INDEX");
  return CreateIndex(unique);
}

Translation DialectWriter::CreateTable() {
  const QString table = TakeName("a table");
  QStringList definitions;
  bool numbered = false;
  Expect("(");
  do {
    definitions.append(PeekIs("CONSTRAINT") ? TableConstraint() : ColumnDefinition(numbered));
  } while (TakeIf(","));
  Expect(")");
  // A numbered column is the table's key to SQLite; the declared key then holds as a unique one.
  if (numbered) {
    for (QString& definition : definitions) {
      if (!definition.startsWith(u'C')) continue;
      definition.replace(QStringLiteral(" PRIMARY KEY ("), QStringLiteral(" UNIQUE ("));
    }
  }
  return Layout(QStringLiteral("CREATE TABLE %1 (%2)")
                    .arg(QuotedName(table), definitions.join(QStringLiteral(", "))));
}

Translation DialectWriter::CreateIndex(bool unique) {
  const QString index = TakeName("an index");
  Expect("ON");
  const QString table = TakeName("a table");
  return Layout(QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)")
                    .arg(unique ? QStringLiteral("UNIQUE ") : QString(), QuotedName(index),
                         QuotedName(table), NameList()));
}

Translation DialectWriter::Alter() {
  Expect("TABLE");
  const QString table = TakeName("a table");
  ColumnsOf(table);
  const bool add = TakeIf("ADD");
  const bool drop = !add && TakeIf("DROP");
  if (!add && !drop) Expect("ALTER");
  TakeIf("COLUMN");
  const QString column = TakeName("a column");
  if (drop) {
    ColumnOf(table, column);
    return Layout(
        QStringLiteral("ALTER TABLE %1 DROP COLUMN %2").arg(QuotedName(table), QuotedName(column)));
  }
  const QString declared = TakeType();
  if (add && !IsNumbering(declared)) {
    return Layout(QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 %3")
                      .arg(QuotedName(table), QuotedName(column), FileDeclaration(declared)));
  }
  Translation translation;
  translation.kind = Translation::Kind::Rebuild;
  translation.rebuild = {
      add ? Translation::Rebuild::Step::AddNumbering : Translation::Rebuild::Step::ChangeType,
      table, add ? column : ColumnOf(table, column).name, declared};
  return translation;
}

Translation DialectWriter::Drop() {
  const bool table = TakeIf("TABLE");
  if (!table) Expect("INDEX");
  const QString name = TakeName("a table");
  if (!table && TakeIf("ON")) TakeName("a table");
  return Layout((table ? QStringLiteral("DROP TABLE ") : QStringLiteral("DROP INDEX ")) +
                QuotedName(name));
}

}  // namespace tavrelin
