#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "data/Catalogue.h"
#include "data/Dialect.h"
#include "data/Tokenizer.h"

namespace tavrelin {

/// Reads the words of one statement from left to right and writes it in SQLite's dialect. Split
/// over DialectExpression.cpp, DialectQuery.cpp, DialectChange.cpp and DialectLayout.cpp by
/// subject.
class DialectWriter {
 public:
  DialectWriter(const QString& sql, Catalogue& catalogue);

  Translation Run(bool withRowNumber);

 private:
  /// A piece of an expression: its SQL, and what is known of its value without running it.
  struct Operand {
    enum class Kind { Unknown, Whole, Floating, Text, Date, Null };
    QString sql;
    Kind kind = Kind::Unknown;
    bool column = false;   ///< a plain column, which brings its own order of texts
    bool literal = false;  ///< one literal and nothing else
    int width = 0;         ///< characters of a literal text
    bool IsNumber() const { return kind == Kind::Whole || kind == Kind::Floating; }
  };
  /// A table as a query names it.
  struct Source {
    QString table;
    QString alias;
  };
  /// What a query has told of itself so far.
  struct Query {
    QList<Source> sources;
    QList<QueryColumn> columns;
    QStringList computed;  ///< names of the columns that are expressions, lower case
    QString items;
    QString rest;  ///< from FROM on
    QList<bool> itemIsColumn;
    bool star = false;
    bool distinct = false;
    bool plain = true;  ///< no grouping, no DISTINCT, no TOP, no aggregate, no UNION
    QString limit;
  };

  // The words
  const Token& Peek(int ahead = 0) const;
  Token Take();
  bool PeekIs(const char* word, int ahead = 0) const;
  bool TakeIf(const char* word);
  void Expect(const char* word);
  QString TakeName(const char* what);
  [[noreturn]] void Refuse() const;
  void ExpectEnd();

  // Expressions, from the loosest operator to the tightest
  Operand Expression();
  Operand AndExpression();
  Operand NotExpression();
  Operand Comparison();
  Operand Concatenation();
  Operand Sum();
  Operand Remainder();
  Operand Product();
  Operand Unary();
  Operand Primary();
  Operand Literal(const Token& token);
  Operand NameOrCall();
  Operand Call(const QString& name);
  Operand Column(const QString& table, const QString& name);
  Operand Compare(const Operand& left, const QString& sign, const Operand& right) const;
  Operand InList(const Operand& left, bool negated);
  Operand Between(const Operand& left, bool negated);
  static Operand Add(const Operand& left, const Operand& right);
  static Operand AsDate(const Operand& operand, const Operand& other);
  QString TextOrder(const Operand& operand) const;
  const TableColumn* Resolve(const QString& table, const QString& name) const;

  // Queries
  QString SelectText(Query& query);
  Translation Select(bool withRowNumber);
  void SelectItems(Query& query);
  void SelectItem(Query& query);
  QString FromClause();
  QString TableExpression();
  QString TablePrimary();
  QString OrderBy(const Query& query);
  QList<Source> SourcesAhead() const;
  static QueryColumn ColumnOf(const Operand& operand);
  static QString EditableTable(const Query& query);

  // Changes
  Translation Insert();
  Translation Update();
  Translation Delete();
  QList<TableColumn> InsertTargets(const QString& table);
  QString InsertValues(const QList<TableColumn>& targets);
  QString InsertQuery(const QString& table, const QList<TableColumn>& targets);
  const QList<TableColumn>& ColumnsOf(const QString& table);
  TableColumn ColumnOf(const QString& table, const QString& name);
  static QString Held(const QString& sql, const TableColumn& column);

  // Layout
  Translation Create();
  Translation CreateTable();
  Translation CreateIndex(bool unique);
  Translation Alter();
  Translation Drop();
  QString TakeType();
  QString ColumnDefinition(bool& numbered);
  QString TableConstraint();
  QString NameList();

  QList<Token> tokens_;
  qsizetype at_ = 0;
  Catalogue& catalogue_;
  QString sql_;
  QList<Source> sources_;  ///< of the query being read
  bool aggregate_ = false;
};

/// A name in SQLite's quotes.
QString QuotedName(const QString& name);
/// A text literal.
QString QuotedText(const QString& text);
/// The column's declaration as the file gets it, with its order of texts and its default.
QString FileDeclaration(const QString& declared);

}  // namespace tavrelin
