#include "basic/TextFile.h"

#include <algorithm>
#include <array>
#include <optional>
#include <QFile>
#include <QStringDecoder>

#include "basic/Error.h"
#include "basic/PlatformPath.h"
#include "basic/WholeFile.h"

namespace tavrelin {

namespace {

// Windows-1252 from 0x80 to 0x9f; the rest of it is Latin-1. Its five unused places keep their
// numbers, so that every byte of a file comes back as it was.
constexpr std::array<char16_t, 32> Windows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr int FirstSpecial = 0x80;

bool IsSpecial(int code) {
  return code >= FirstSpecial && code < FirstSpecial + static_cast<int>(Windows1252.size());
}

// The byte of a character, or nothing when Windows-1252 has none.
std::optional<char> ByteOf(char16_t c) {
  if (c <= 0xFF && !IsSpecial(c)) return static_cast<char>(c);
  const auto found = std::find(Windows1252.begin(), Windows1252.end(), c);
  if (found == Windows1252.end()) return {};
  return static_cast<char>(FirstSpecial + (found - Windows1252.begin()));
}

QChar CharacterOf(char byte) {
  const int code = static_cast<uchar>(byte);
  return IsSpecial(code) ? Windows1252[static_cast<size_t>(code - FirstSpecial)]
                         : static_cast<char16_t>(code);
}

// The text when the bytes are UTF-8.
std::optional<QString> AsUtf8(const QByteArray& bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = decoder(bytes);
  if (decoder.hasError()) return {};
  return text;
}

[[noreturn]] void Fail(const QFileDevice& file) {
  throw Error(errors::File, file.errorString());
}

}  // namespace

QByteArray EncodeText(const QString& text) {
  QByteArray bytes;
  bytes.reserve(text.size());
  bool isAscii = true;
  for (const QChar c : text) {
    const auto byte = ByteOf(c.unicode());
    if (!byte) return text.toUtf8();
    bytes += *byte;
    isAscii = isAscii && c.unicode() < FirstSpecial;
  }
  // "Ã©" in Windows-1252 would be read back as the UTF-8 of "é".
  return isAscii || !AsUtf8(bytes) ? bytes : text.toUtf8();
}

QString DecodeText(const QByteArray& bytes) {
  if (const auto text = AsUtf8(bytes)) return *text;
  QString text;
  text.reserve(bytes.size());
  for (const char byte : bytes) text += CharacterOf(byte);
  return text;
}

void WriteTextFile(const QString& path, const QString& text) {
  QString lines = text;
  lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  lines.replace(u'\n', QStringLiteral("\r\n"));
  WriteWholeFile(PlatformPath(path), EncodeText(lines));
}

QString ReadTextFile(const QString& path) {
  QFile file(PlatformPath(path));
  if (!file.open(QIODevice::ReadOnly)) Fail(file);
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) Fail(file);
  return DecodeText(bytes).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

}  // namespace tavrelin
