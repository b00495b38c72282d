#include "print/PdfFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "basic/Error.h"
#include "print/OutputTarget.h"
#include "support/FileLimit.h"
#include "support/OrdinaryUser.h"
#include "support/PdfPages.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct PdfFileTest : testing::Test {
  QTemporaryDir folder;
  QString path = folder.filePath("results.pdf");
  Document document = Record(OutputTarget::Kind::Printer, "Spring Open", [](OutputTarget& target) {
    target.Print("Jos\u00e9 Nu\u00f1ez");
    target.Font().name = "Tahoma";
    target.Print("Tahoma");
  });

  QString Refusal(const QString& where) {
    try {
      WritePdf(document, where);
    } catch (const Error& error) {
      return error.description();
    }
    return {};
  }
};

TEST_F(PdfFileTest, TheFileHoldsItsTextAndItsTypefaces) {
  WritePdf(document, path);
  const PdfPages pdf(path);
  EXPECT_TRUE(pdf.Has(QStringLiteral("Nu\u00f1ez")));
  const QString fonts = QString::fromUtf8(RunProgram("pdffonts", {path}));
  EXPECT_TRUE(fonts.contains("LiberationSans") || fonts.contains("Arial")) << fonts.toStdString();
  EXPECT_TRUE(fonts.contains("Tahoma")) << fonts.toStdString();
  for (const QString& line : fonts.split('\n').mid(2)) {
    const bool embedded = line.isEmpty() || line.contains(" yes ");
    EXPECT_TRUE(embedded) << line.toStdString();
  }
  EXPECT_TRUE(QString::fromUtf8(RunProgram("pdfinfo", {path})).contains("Spring Open"));
}

TEST_F(PdfFileTest, AFileThatStandsThereIsReplacedWhole) {
  QFile old(path);
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write(QByteArray(1000000, 'x'));
  old.close();
  WritePdf(document, path);
  EXPECT_EQ(PdfPages(path).PageCount(), 1);
}

TEST_F(PdfFileTest, AFolderThatDoesNotExistIsASentence) {
  EXPECT_EQ(Refusal(folder.filePath("nowhere/results.pdf")),
            "Unable to open file. No such file or directory");
}

TEST_F(PdfFileTest, AFolderThatCannotBeWrittenToIsASentence) {
  QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner);
  QString reason;
  {
    const OrdinaryUser nobody;
    reason = Refusal(path);
  }
  QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  EXPECT_EQ(reason, "Unable to open file. Permission denied");
  EXPECT_FALSE(QFile::exists(path));
}

TEST_F(PdfFileTest, AFolderInPlaceOfTheFileIsASentence) {
  EXPECT_FALSE(Refusal(folder.path()).isEmpty());
}

// A limit on the size of files stands in for a full disk: the write ends half way.
TEST_F(PdfFileTest, AFullDiskIsASentenceAndLeavesTheOldFileAndNoHalfFile) {
  QFile old(path);
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("before");
  old.close();

  QString reason;
  {
    const FileLimit limit(100);
    reason = Refusal(path);
  }
  EXPECT_EQ(reason, "Unable to open file. File too large");
  ASSERT_TRUE(old.open(QIODevice::ReadOnly));
  EXPECT_EQ(old.readAll(), "before");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("results.pdf"));
}

}  // namespace
}  // namespace tavrelin
