#include "data/Dialect.h"

#include <algorithm>

#include "basic/Error.h"
#include "data/DialectWriter.h"

namespace tavrelin {

QString QuotedName(const QString& name) {
  return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString QuotedText(const QString& text) {
  return u'\'' + QString(text).replace(u'\'', QStringLiteral("''")) + u'\'';
}

DialectWriter::DialectWriter(const QString& sql, Catalogue& catalogue)
    : tokens_(Tokenize(sql)), catalogue_(catalogue), sql_(sql) {}

const Token& DialectWriter::Peek(int ahead) const {
  return tokens_[std::min(at_ + ahead, tokens_.size() - 1)];
}

Token DialectWriter::Take() {
  const Token token = Peek();
  if (at_ < tokens_.size() - 1) ++at_;
  return token;
}

// A word or a sign.
bool DialectWriter::PeekIs(const char* word, int ahead) const {
  const Token& token = Peek(ahead);
  return token.Is(QLatin1String(word)) || token.IsSymbol(QLatin1String(word));
}

bool DialectWriter::TakeIf(const char* word) {
  if (!PeekIs(word)) return false;
  Take();
  return true;
}

void DialectWriter::Expect(const char* word) {
  if (!TakeIf(word)) Refuse();
}

QString DialectWriter::TakeName(const char* what) {
  const Token token = Take();
  if (token.kind != Token::Kind::Word && token.kind != Token::Kind::Bracketed) {
    throw Error(errors::Syntax, QStringLiteral("The statement cannot be read: the name of %1 is "
                                               "missing.")
                                    .arg(QLatin1String(what)));
  }
  return token.text;
}

void DialectWriter::Refuse() const {
  const QString rest = sql_.mid(Peek().at, 40).trimmed();
  throw Error(errors::Syntax,
              rest.isEmpty()
                  ? QStringLiteral("The statement cannot be read: it is not complete.")
                  : QStringLiteral("The statement cannot be read from here on: %1").arg(rest));
}

void DialectWriter::ExpectEnd() {
  TakeIf(";");
  if (Peek().kind != Token::Kind::End) Refuse();
}

Translation DialectWriter::Run(bool withRowNumber) {
  Translation translation;
  if (PeekIs("SELECT")) {
    translation = Select(withRowNumber);
  } else if (TakeIf("INSERT")) {
    translation = Insert();
  } else if (TakeIf("UPDATE")) {
    translation = Update();
  } else if (TakeIf("DELETE")) {
    translation = Delete();
  } else if (TakeIf("CREATE")) {
    translation = Create();
  } else if (TakeIf("ALTER")) {
    translation = Alter();
  } else if (TakeIf("DROP")) {
    translation = Drop();
  } else {
    Refuse();
  }
  ExpectEnd();
  return translation;
}

Translation Translate(const QString& sql, Catalogue& catalogue, bool withRowNumber) {
  return DialectWriter(sql, catalogue).Run(withRowNumber);
}

}  // namespace tavrelin
