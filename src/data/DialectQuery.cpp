#include <algorithm>
#include <utility>

#include "basic/Error.h"
#include "data/DialectWriter.h"

namespace tavrelin {
namespace {

const QString RowNumber = QStringLiteral("row_number_of_file");

bool EndsItem(const Token& token) {
  return token.Is(QLatin1String("FROM")) || token.IsSymbol(QLatin1String(",")) ||
         token.IsSymbol(QLatin1String(")")) || token.IsSymbol(QLatin1String(";")) ||
         token.kind == Token::Kind::End;
}

// Words that may stand behind a table and are no alias for it.
bool EndsTable(const Token& token) {
  for (const char* word :
       {"WHERE", "GROUP", "HAVING", "ORDER", "UNION", "INNER", "LEFT", "RIGHT", "JOIN", "ON"}) {
    if (token.Is(QLatin1String(word))) return true;
  }
  return token.kind != Token::Kind::Word && token.kind != Token::Kind::Bracketed;
}

}  // namespace

// The tables are named behind the columns, so they are looked up before the columns are read.
QList<DialectWriter::Source> DialectWriter::SourcesAhead() const {
  QList<Source> sources;
  int depth = 0;
  bool inFrom = false;
  bool tableNext = false;
  for (qsizetype i = at_; i < tokens_.size(); ++i) {
    const Token& token = tokens_[i];
    if (token.IsSymbol(QLatin1String("("))) ++depth;
    if (token.IsSymbol(QLatin1String(")")) && --depth < 0) break;
    if (depth == 0 && (token.Is(QLatin1String("WHERE")) || token.Is(QLatin1String("ORDER")) ||
                       token.Is(QLatin1String("GROUP")) || token.Is(QLatin1String("UNION")))) {
      break;
    }
    if (depth == 0 && token.Is(QLatin1String("FROM"))) inFrom = tableNext = true;
    if (!inFrom) continue;
    if (token.IsSymbol(QLatin1String(",")) || token.Is(QLatin1String("JOIN"))) {
      tableNext = true;
    } else if (tableNext && !token.Is(QLatin1String("FROM")) &&
               (token.kind == Token::Kind::Word || token.kind == Token::Kind::Bracketed)) {
      Source source{token.text, token.text};
      qsizetype next = i + 1;
      if (tokens_[next].Is(QLatin1String("AS"))) ++next;
      if (!EndsTable(tokens_[next])) source.alias = tokens_[next].text;
      sources.append(source);
      tableNext = false;
    }
  }
  return sources;
}

Translation DialectWriter::Select(bool withRowNumber) {
  Query query;
  Translation translation;
  translation.kind = Translation::Kind::Query;
  translation.sql = SelectText(query);
  translation.columns = query.star ? QList<QueryColumn>() : query.columns;
  translation.table = EditableTable(query);
  if (translation.table.isEmpty() || catalogue_.Columns(translation.table).isEmpty()) {
    translation.table.clear();
  } else if (withRowNumber) {
    const Source& source = query.sources.first();
    translation.rowSql = QStringLiteral("SELECT %1 FROM %2 AS %3 WHERE %3.rowid = ?")
                             .arg(query.items, QuotedName(source.table), QuotedName(source.alias));
    translation.sql =
        QStringLiteral("SELECT %1, %2.rowid AS %3 %4")
            .arg(query.items, QuotedName(query.sources.first().alias), RowNumber, query.rest);
  }
  return translation;
}

QString DialectWriter::EditableTable(const Query& query) {
  return query.plain && query.sources.size() == 1 ? query.sources.first().table : QString();
}

// One SELECT with all that belongs to it, UNIONs included.
QString DialectWriter::SelectText(Query& query) {
  Expect("SELECT");
  query.sources = sources_ = SourcesAhead();
  const bool outerAggregate = std::exchange(aggregate_, false);
  if (TakeIf("DISTINCT")) query.distinct = true;
  TakeIf("ALL");
  if (TakeIf("TOP")) query.limit = QStringLiteral(" LIMIT ") + Take().text;
  SelectItems(query);
  if (TakeIf("FROM")) query.rest = QStringLiteral("FROM ") + FromClause();
  if (TakeIf("WHERE")) query.rest += QStringLiteral(" WHERE ") + Expression().sql;
  if (TakeIf("GROUP")) {
    Expect("BY");
    QStringList keys;
    do {
      const Operand key = Expression();
      keys.append(key.sql + TextOrder(key));
    } while (TakeIf(","));
    query.rest += QStringLiteral(" GROUP BY ") + keys.join(QStringLiteral(", "));
    if (TakeIf("HAVING")) query.rest += QStringLiteral(" HAVING ") + Expression().sql;
    query.plain = false;
  }
  query.plain = query.plain && !aggregate_ && !query.distinct && query.limit.isEmpty();
  aggregate_ = outerAggregate;
  if (TakeIf("UNION")) {
    const QString all = TakeIf("ALL") ? QStringLiteral(" UNION ALL ") : QStringLiteral(" UNION ");
    Query other;
    query.rest += all + SelectText(other);
    query.plain = false;
  } else {
    if (TakeIf("ORDER")) query.rest += OrderBy(query);
    query.rest += query.limit;
  }
  const QString distinct = query.distinct ? QStringLiteral("DISTINCT ") : QString();
  return QStringLiteral("SELECT %1%2 %3").arg(distinct, query.items, query.rest);
}

void DialectWriter::SelectItems(Query& query) {
  do {
    if (!query.items.isEmpty()) query.items += QStringLiteral(", ");
    const bool starred = PeekIs("*") || (PeekIs(".", 1) && PeekIs("*", 2));
    if (!starred) {
      SelectItem(query);
      continue;
    }
    query.star = true;
    if (TakeIf("*")) {
      query.items += u'*';
    } else {
      query.items += QuotedName(TakeName("a table")) + QStringLiteral(".*");
      Expect(".");
      Expect("*");
    }
  } while (TakeIf(","));
}

QueryColumn DialectWriter::ColumnOf(const Operand& operand) {
  if (operand.column) return {};
  switch (operand.kind) {
    case Operand::Kind::Whole:
      return {true, FieldType::Long, 0};
    case Operand::Kind::Floating:
      return {true, FieldType::Double, 0};
    case Operand::Kind::Text:
      return {true, FieldType::Text, operand.literal ? operand.width : 0};
    case Operand::Kind::Date:
      return {true, FieldType::Date, 0};
    default:
      return {};
  }
}

void DialectWriter::SelectItem(Query& query) {
  const Operand operand = Expression();
  QString name;
  if (TakeIf("AS") || !EndsItem(Peek())) name = TakeName("a column");
  query.columns.append(ColumnOf(operand));
  if (!operand.column && name.isEmpty()) {
    name = QStringLiteral("Expr%1").arg(999 + query.columns.size());
  }
  if (!operand.column) query.computed.append(name.toLower());
  query.itemIsColumn.append(operand.column);
  query.items += operand.sql;
  if (query.distinct) query.items += TextOrder(operand);
  if (!name.isEmpty()) query.items += QStringLiteral(" AS ") + QuotedName(name);
}

QString DialectWriter::FromClause() {
  QStringList tables;
  do {
    tables.append(TableExpression());
  } while (TakeIf(","));
  return tables.join(QStringLiteral(", "));
}

QString DialectWriter::TableExpression() {
  QString sql = TablePrimary();
  for (;;) {
    QString join;
    if (TakeIf("INNER")) {
      join = QStringLiteral(" INNER JOIN ");
    } else if (TakeIf("LEFT")) {
      join = QStringLiteral(" LEFT JOIN ");
    } else if (TakeIf("RIGHT")) {
      join = QStringLiteral(" RIGHT JOIN ");
    } else {
      return sql;
    }
    TakeIf("OUTER");
    Expect("JOIN");
    sql += join + TablePrimary();
    Expect("ON");
    sql += QStringLiteral(" ON ") + Expression().sql;
  }
}

QString DialectWriter::TablePrimary() {
  if (TakeIf("(")) {
    const QString inner = TableExpression();
    Expect(")");
    return u'(' + inner + u')';
  }
  QString sql = QuotedName(TakeName("a table"));
  if (TakeIf("AS") || !EndsTable(Peek()))
    sql += QStringLiteral(" AS ") + QuotedName(TakeName("a table"));
  return sql;
}

QString DialectWriter::OrderBy(const Query& query) {
  Expect("BY");
  QStringList keys;
  do {
    const Token first = Peek();
    const bool place = first.kind == Token::Kind::Number;
    const bool alias =
        first.kind == Token::Kind::Word && query.computed.contains(first.text.toLower());
    const Operand key = Expression();
    QString sql = key.sql;
    if (place) {
      const qsizetype index = first.text.toInt() - 1;
      if (!query.star && query.itemIsColumn.value(index) == false)
        sql += QStringLiteral(" COLLATE NOCASE");
    } else {
      sql += alias ? QStringLiteral(" COLLATE NOCASE") : TextOrder(key);
    }
    if (TakeIf("DESC")) {
      sql += QStringLiteral(" DESC");
    } else {
      TakeIf("ASC");
    }
    keys.append(sql);
  } while (TakeIf(","));
  return QStringLiteral(" ORDER BY ") + keys.join(QStringLiteral(", "));
}

}  // namespace tavrelin
