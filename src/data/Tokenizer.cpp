#include "data/Tokenizer.h"

#include "basic/Error.h"

namespace tavrelin {
namespace {

class Tokenizer {
 public:
  explicit Tokenizer(const QString& sql) : sql_(sql) {}

  QList<Token> Run() {
    QList<Token> tokens;
    for (;;) {
      while (at_ < sql_.size() && sql_[at_].isSpace()) ++at_;
      const qsizetype start = at_;
      Token token = at_ < sql_.size() ? Next() : Token{};
      token.at = start;
      tokens.append(token);
      if (token.kind == Token::Kind::End) return tokens;
    }
  }

 private:
  QChar Peek(qsizetype ahead = 0) const {
    return at_ + ahead < sql_.size() ? sql_[at_ + ahead] : QChar();
  }

  Token Next() {
    const QChar c = Peek();
    if (c == u'\'' || c == u'"') return {Token::Kind::Text, Quoted(c), 0};
    if (c == u'#') return {Token::Kind::Date, UpTo(u'#'), 0};
    if (c == u'[') return {Token::Kind::Bracketed, UpTo(u']'), 0};
    if (c == u'?') return {Token::Kind::Parameter, sql_.mid(at_++, 1), 0};
    if (c.isDigit() || (c == u'.' && Peek(1).isDigit())) return {Token::Kind::Number, Number(), 0};
    if (c.isLetter() || c == u'_') return {Token::Kind::Word, Word(), 0};
    return {Token::Kind::Symbol, Symbol(), 0};
  }

  [[noreturn]] void RefuseOpen(QChar mark) const {
    throw Error(errors::Syntax,
                QStringLiteral("The statement cannot be read: a %1 is missing.").arg(mark));
  }

  QString Quoted(QChar quote) {
    QString text;
    for (++at_; at_ < sql_.size(); ++at_) {
      if (sql_[at_] == quote && Peek(1) != quote) {
        ++at_;
        return text;
      }
      if (sql_[at_] == quote) ++at_;
      text += sql_[at_];
    }
    RefuseOpen(quote);
  }

  QString UpTo(QChar mark) {
    const qsizetype end = sql_.indexOf(mark, at_ + 1);
    if (end < 0) RefuseOpen(mark);
    const QString text = sql_.mid(at_ + 1, end - at_ - 1);
    at_ = end + 1;
    return text;
  }

  QString Number() {
    const qsizetype start = at_;
    while (Peek().isDigit() || Peek() == u'.') ++at_;
    if (Peek().toLower() == u'e') {
      const qsizetype sign = Peek(1) == u'+' || Peek(1) == u'-' ? 2 : 1;
      if (Peek(sign).isDigit()) {
        at_ += sign;
        while (Peek().isDigit()) ++at_;
      }
    }
    return sql_.mid(start, at_ - start);
  }

  QString Word() {
    const qsizetype start = at_;
    while (Peek().isLetterOrNumber() || Peek() == u'_') ++at_;
    return sql_.mid(start, at_ - start);
  }

  QString Symbol() {
    const QString two = sql_.mid(at_, 2);
    const qsizetype length = two == u"<>" || two == u"<=" || two == u">=" ? 2 : 1;
    at_ += length;
    return two.left(length);
  }

  const QString& sql_;
  qsizetype at_ = 0;
};

}  // namespace

QList<Token> Tokenize(const QString& sql) {
  return Tokenizer(sql).Run();
}

}  // namespace tavrelin
