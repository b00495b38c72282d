#include <gtest/gtest.h>

#include <sys/stat.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "basic/Error.h"
#include "basic/TextFile.h"
#include "support/FileLimit.h"
#include "support/OrdinaryUser.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

class TextFile : public testing::Test {
 protected:
  QString Path(const QString& name) const { return folder_.filePath(name); }

  QByteArray Bytes(const QString& name) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  void Put(const QString& name, const QByteArray& bytes) const {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  QStringList Files() const { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden); }

  // The description of the refusal; empty when nothing is refused.
  template <typename Work>
  static QString Reason(Work work) {
    try {
      work();
    } catch (const Error& error) {
      EXPECT_EQ(error.number(), errors::File);
      return error.description();
    }
    return {};
  }

  QTemporaryDir folder_;
};

TEST_F(TextFile, LinesEndInCrLfHoweverTheTextEndsThem) {
  WriteTextFile(Path(u"a.txt"_qs), u"one\ntwo\r\n\nfour"_qs);
  EXPECT_EQ(Bytes(u"a.txt"_qs), "one\r\ntwo\r\n\r\nfour");
  EXPECT_EQ(ReadTextFile(Path(u"a.txt"_qs)), u"one\ntwo\n\nfour");
}

TEST_F(TextFile, TakesTheOldFilesPlaceAndLeavesNoNeighbor) {
  WriteTextFile(Path(u"a.txt"_qs), u"a long first text"_qs);
  WriteTextFile(Path(u"a.txt"_qs), u"new"_qs);
  EXPECT_EQ(Bytes(u"a.txt"_qs), "new");
  EXPECT_EQ(Files(), QStringList{u"a.txt"_qs});
}

TEST_F(TextFile, PathsOfTheBoxesAreUnderstood) {
  WriteTextFile(folder_.path() + u"\\Results.txt"_qs, u"x"_qs);
  EXPECT_EQ(Files(), QStringList{u"Results.txt"_qs});
  EXPECT_EQ(ReadTextFile(folder_.path() + u"\\Results.txt"_qs), u"x");
}

TEST_F(TextFile, IsWindows1252WhenEveryCharacterFits) {
  WriteTextFile(Path(u"a.txt"_qs), u"É ü ½ “x” – €"_qs);
  EXPECT_EQ(Bytes(u"a.txt"_qs), "\xC9 \xFC \xBD \x93x\x94 \x96 \x80");
}

TEST_F(TextFile, IsUtf8WhenACharacterNeedsIt) {
  for (const auto& text : {u"Łódź"_qs, u"É and 🎯"_qs, u"Σ"_qs}) {
    WriteTextFile(Path(u"a.txt"_qs), text);
    EXPECT_EQ(Bytes(u"a.txt"_qs), text.toUtf8());
    EXPECT_EQ(ReadTextFile(Path(u"a.txt"_qs)), text);
  }
}

TEST_F(TextFile, TextThatWouldLookLikeUtf8ComesBackAsItWas) {
  EXPECT_EQ(DecodeText(EncodeText(u"Ã©"_qs)), u"Ã©");
}

TEST_F(TextFile, TheSpecialCharactersOfWindows1252) {
  const QString specials = u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ"_qs;
  const QByteArray bytes =
      "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8a\x8b\x8c\x8e\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9a"
      "\x9b\x9c\x9e\x9f";
  ASSERT_EQ(specials.size(), 27);
  ASSERT_EQ(bytes.size(), 27);
  EXPECT_EQ(DecodeText(bytes), specials);
  EXPECT_EQ(EncodeText(specials), bytes);
}

TEST_F(TextFile, EveryByteComesBack) {
  QByteArray bytes;
  for (int code = 1; code < 256; ++code) bytes += static_cast<char>(code);
  EXPECT_EQ(EncodeText(DecodeText(bytes)), bytes);
}

TEST_F(TextFile, ReadsUtf8WhenItIsValidAndElseWindows1252) {
  const QList<QPair<QByteArray, QString>> cases = {
      {"caf\xC3\xA9", u"café"_qs},
      {"caf\xE9", u"café"_qs},
      {"caf\xC3", u"cafÃ"_qs},  // cut off in the middle of a character
      {"\xC3\xA9 and \xE9", u"Ã© and é"_qs},
      {"\xEF\xBB\xBFname", u"name"_qs},
      {"", u""_qs},
      {"plain", u"plain"_qs},
  };
  for (const auto& [bytes, text] : cases) {
    Put(u"a.txt"_qs, bytes);
    EXPECT_EQ(ReadTextFile(Path(u"a.txt"_qs)), text) << bytes.toHex().toStdString();
  }
}

TEST_F(TextFile, AMissingFolderIsToldInTheSystemsWords) {
  EXPECT_EQ(Reason([&] { WriteTextFile(Path(u"none/a.txt"_qs), u"x"_qs); }),
            u"No such file or directory");
  EXPECT_EQ(Files(), QStringList());
}

TEST_F(TextFile, AMissingFileIsToldInTheSystemsWords) {
  EXPECT_EQ(Reason([&] { ReadTextFile(Path(u"none.txt"_qs)); }), u"No such file or directory");
}

TEST_F(TextFile, AFolderIsNoFile) {
  EXPECT_FALSE(Reason([&] { WriteTextFile(folder_.path(), u"x"_qs); }).isEmpty());
  EXPECT_FALSE(Reason([&] { ReadTextFile(folder_.path()); }).isEmpty());
}

TEST_F(TextFile, AReadOnlyFolderRefusesAndKeepsTheOldFile) {
  WriteTextFile(Path(u"a.txt"_qs), u"old"_qs);
  ASSERT_EQ(chmod(qPrintable(folder_.path()), 0555), 0);
  {
    const OrdinaryUser user;
    EXPECT_EQ(Reason([&] { WriteTextFile(Path(u"a.txt"_qs), u"new"_qs); }), u"Permission denied");
  }
  ASSERT_EQ(chmod(qPrintable(folder_.path()), 0755), 0);
  EXPECT_EQ(Bytes(u"a.txt"_qs), "old");
  EXPECT_EQ(Files(), QStringList{u"a.txt"_qs});
}

TEST_F(TextFile, AFileForWhichThereIsNoRoomKeepsTheOldOne) {
  for (const int room : {1, 99, 100000}) {
    WriteTextFile(Path(u"a.txt"_qs), u"old"_qs);
    const QString text(2 * room, u'x');
    {
      const FileLimit limit(static_cast<rlim_t>(room));
      EXPECT_EQ(Reason([&] { WriteTextFile(Path(u"a.txt"_qs), text); }), u"File too large"_qs)
          << room;
    }
    EXPECT_EQ(ReadTextFile(Path(u"a.txt"_qs)), u"old"_qs);
    EXPECT_EQ(Files(), QStringList{u"a.txt"_qs});
  }
}

}  // namespace
}  // namespace tavrelin
