#pragma once

#include <QList>
#include <QString>

namespace tavrelin {

/// One word of a statement.
struct Token {
  enum class Kind { Word, Bracketed, Number, Text, Date, Parameter, Symbol, End };

  Kind kind = Kind::End;
  QString text;      ///< of a text, a date or a bracketed name: what stands between the marks
  qsizetype at = 0;  ///< where it begins in the statement

  /// A bare word, case disregarded; never a bracketed name.
  bool Is(QLatin1String word) const {
    return kind == Kind::Word && text.compare(word, Qt::CaseInsensitive) == 0;
  }
  bool IsSymbol(QLatin1String symbol) const { return kind == Kind::Symbol && text == symbol; }
};

/// Cuts a statement of the Access dialect into its words: names, [names], numbers, 'texts' and
/// "texts" with doubled quotes, #dates#, ? and signs. Ends with a token of kind End. Throws
/// Error(Syntax) when a quote, a # or a bracket is left open.
QList<Token> Tokenize(const QString& sql);

}  // namespace tavrelin
