#include <algorithm>
#include <QList>

#include "basic/Value.h"

namespace tavrelin {

namespace {

constexpr uint SharpS = 0x00DF;
constexpr uint CapitalSharpS = 0x1E9E;
constexpr uint Stroke = 0x0338;

constexpr bool IsAscii(char16_t c) {
  return c < 0x80;
}

constexpr uint LowerAscii(uint c) {
  return c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c;
}

uint FoldCase(uint c) {
  return c == CapitalSharpS ? SharpS : QChar::toCaseFolded(c);
}

bool IsAccent(uint c) {
  return QChar::combiningClass(c) != 0;
}

// The base letters of a folded letter that Unicode does not take apart, else nothing.
const char* BaseLetters(uint c) {
  switch (c) {
    case SharpS:
      return "ss";
    case 0x00E6:
      return "ae";
    case 0x0153:
      return "oe";
    case 0x00F8:
      return "o";
    case 0x0111:
      return "d";
    case 0x00F0:
      return "d";
    case 0x0142:
      return "l";
    case 0x00FE:
      return "th";
    case 0x0131:
      return "i";
    default:
      return nullptr;
  }
}

// Builds a key: all base letters, a zero, then the accents in their places. Texts without accents
// have letters alone, and that is nearly all of them.
class KeyBuilder {
 public:
  explicit KeyBuilder(qsizetype size) { letters_.reserve(size); }

  void Letter(uint c) {
    // Weights begin behind zero, which parts letters from accents.
    Put(letters_, c + 1);
    ++plain_;
  }

  void Accent(uint c) {
    // A letter without accents weighs less than any accent, and counts only if one follows.
    accents_.append(plain_, '\1');
    plain_ = 0;
    Put(accents_, c);
  }

  QByteArray Key() const { return accents_.isEmpty() ? letters_ : letters_ + '\0' + accents_; }

 private:
  // One byte below 0x80, else three with the first at 0x80 or above: memcmp orders by number.
  static void Put(QByteArray& bytes, uint weight) {
    if (weight >= 0x80) {
      bytes.append(static_cast<char>(0x80 | (weight >> 16)));
      bytes.append(static_cast<char>((weight >> 8) & 0xFF));
    }
    bytes.append(static_cast<char>(weight & 0xFF));
  }

  QByteArray letters_;
  QByteArray accents_;
  qsizetype plain_ = 0;
};

void AddFolded(KeyBuilder& key, uint c) {
  const char* base = BaseLetters(c);
  if (!base) return key.Letter(c);
  for (; *base; ++base) key.Letter(static_cast<uchar>(*base));
  key.Accent(Stroke);
}

// Without case, one element a character as people count them: É is one, and so is an emoji.
QList<uint> Characters(QStringView text) {
  QList<uint> codes = text.toString().normalized(QString::NormalizationForm_D).toUcs4();
  for (uint& c : codes) {
    if (!IsAccent(c)) c = FoldCase(c);
  }
  const QString folded =
      QString::fromUcs4(reinterpret_cast<const char32_t*>(codes.constData()), codes.size());
  return folded.normalized(QString::NormalizationForm_C).toUcs4();
}

// On a mismatch the last % takes one character more; going back further never helps.
template <typename Character>
bool Matches(const Character* text, const Character* textEnd, const Character* pattern,
             const Character* patternEnd) {
  const Character* restartPattern = nullptr;
  const Character* restartText = nullptr;
  while (text != textEnd) {
    if (pattern != patternEnd && *pattern == '%') {
      restartPattern = ++pattern;
      restartText = text;
    } else if (pattern != patternEnd &&
               (*pattern == '_' || LowerAscii(*pattern) == LowerAscii(*text))) {
      ++pattern;
      ++text;
    } else if (restartPattern) {
      pattern = restartPattern;
      text = ++restartText;
    } else {
      return false;
    }
  }
  return std::all_of(pattern, patternEnd, [](Character c) { return c == '%'; });
}

bool AllAscii(QStringView text) {
  return std::all_of(text.utf16(), text.utf16() + text.size(), IsAscii);
}

}  // namespace

QByteArray SortKey(QStringView text) {
  KeyBuilder key(text.size());
  if (AllAscii(text)) {
    for (const QChar c : text) key.Letter(LowerAscii(c.unicode()));
    return key.Key();
  }
  for (const uint c : text.toString().normalized(QString::NormalizationForm_D).toUcs4()) {
    IsAccent(c) ? key.Accent(c) : AddFolded(key, FoldCase(c));
  }
  return key.Key();
}

int CompareText(QStringView a, QStringView b) {
  const qsizetype shorter = std::min(a.size(), b.size());
  const char16_t* x = a.utf16();
  const char16_t* y = b.utf16();
  qsizetype i = 0;
  for (; i < shorter && IsAscii(x[i]) && IsAscii(y[i]); ++i) {
    const uint p = LowerAscii(x[i]);
    const uint q = LowerAscii(y[i]);
    if (p != q) return p < q ? -1 : 1;
  }
  const bool endA = i == a.size();
  const bool endB = i == b.size();
  if (endA && endB) return 0;
  if (endA || endB) return endA ? -1 : 1;
  // What stands in front is alike and without accents; the keys of the rest decide.
  return SortKey(a.mid(i)).compare(SortKey(b.mid(i)));
}

bool LikeText(QStringView text, QStringView pattern) {
  if (AllAscii(text) && AllAscii(pattern)) {
    return Matches(text.utf16(), text.utf16() + text.size(), pattern.utf16(),
                   pattern.utf16() + pattern.size());
  }
  const QList<uint> t = Characters(text);
  const QList<uint> p = Characters(pattern);
  return Matches(t.constData(), t.constData() + t.size(), p.constData(), p.constData() + p.size());
}

}  // namespace tavrelin
