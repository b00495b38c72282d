// The club's file goes from under an open recordset: moved, deleted, replaced or cut short by
// something else than this program.

#include <cstdio>
#include <functional>
#include <QFileInfo>
#include <QRegularExpression>

#include "support/ClubFixture.h"

namespace tavrelin {
namespace {

struct Harm {
  const char* name;
  void (*strike)(const QString& file, const QString& aside);
};

void Move(const QString& file, const QString& aside) {
  QFile::rename(file, aside);
}
void Delete(const QString& file, const QString& aside) {
  QFile::copy(file, aside);
  QFile::remove(file);
}
void Replace(const QString& file, const QString& aside) {
  const QString other = aside + ".other";
  QFile::copy(file, aside);
  QFile::copy(file, other);
  std::rename(qPrintable(other), qPrintable(file));
}
void Empty(const QString& file, const QString& aside) {
  QFile::copy(file, aside);
  QFile::resize(file, 0);
}
void CutInHalf(const QString& file, const QString& aside) {
  QFile::copy(file, aside);
  QFile::resize(file, QFileInfo(file).size() / 2);
}

struct FileGone : ClubFixture, testing::WithParamInterface<Harm> {
  FileGone() : aside(folder.filePath("Aside.mdb")) {
    Run("CREATE TABLE Players (PlayerID TEXT(6), LastName TEXT(25), Remarks MEMO)");
    for (const char* id : {"1", "2", "3"}) {
      Run("INSERT INTO Players VALUES(?, 'Smith', ?)", {Value(id), Value(QString(3000, u'x'))});
    }
    connection.Open(ConnectText());  // as a screen finds it: nothing of it read yet
    rows.Open("SELECT * FROM Players", connection, Recordset::Lock::Optimistic);
  }
  static QByteArray BytesOf(const QString& file) {
    QFile bytes(file);
    return bytes.open(QIODevice::ReadOnly) ? bytes.readAll() : QByteArray();
  }
  void Strike() {
    before = BytesOf(path);
    GetParam().strike(path, aside);
    after = BytesOf(path);
  }
  // Neither what stands under the file's name now nor the file of before has taken anything.
  void NothingWasWritten() {
    EXPECT_EQ(BytesOf(path), after);
    EXPECT_EQ(BytesOf(aside), before);
  }
  static QString Sentence(const std::function<void()>& work) {
    try {
      work();
    } catch (const Error& error) {
      return error.description();
    }
    return QStringLiteral("(nothing was refused)");
  }

  QString aside;
  QByteArray before, after;
  Recordset rows;
};

const QRegularExpression GoneSentence(
    "^The file .+ (was replaced, moved, deleted or cut short while it was open, and nothing was "
    "written\\. Leave the screen|is damaged\\. Close the program).+\\.$");

TEST_P(FileGone, TheNextRowIsRefusedWithASentenceAndStaysTyped) {
  Strike();
  rows.Set("LastName", "Olson");
  const QString said = Sentence([&] { rows.Update(); });
  EXPECT_TRUE(GoneSentence.match(said).hasMatch()) << said.toStdString();
  EXPECT_TRUE(rows.IsEditing());
  EXPECT_EQ(rows["LastName"], Value("Olson"));
  NothingWasWritten();
}

TEST_P(FileGone, ANewRowAndADeletionAreRefused) {
  Strike();
  const QString deletion = Sentence([&] { rows.Delete(); });
  EXPECT_TRUE(GoneSentence.match(deletion).hasMatch()) << deletion.toStdString();
  EXPECT_EQ(rows.RecordCount(), 3);
  rows.AddNew();
  rows.Set("LastName", "Olson");
  const QString addition = Sentence([&] { rows.Update(); });
  EXPECT_TRUE(GoneSentence.match(addition).hasMatch()) << addition.toStdString();
  NothingWasWritten();
}

TEST_P(FileGone, ABatchThatIsUnderWayIsRefusedWhole) {
  const QString said = Sentence([&] {
    Batch batch(connection);
    Run("UPDATE Players SET LastName = 'Olson'");
    Strike();
    batch.Commit();
  });
  EXPECT_TRUE(GoneSentence.match(said).hasMatch()) << said.toStdString();
  NothingWasWritten();
}

INSTANTIATE_TEST_SUITE_P(By, FileGone,
                         testing::Values(Harm{"Moving", Move}, Harm{"Deleting", Delete},
                                         Harm{"Replacing", Replace}, Harm{"Emptying", Empty},
                                         Harm{"CuttingInHalf", CutInHalf}),
                         [](const auto& harm) { return std::string(harm.param.name); });

}  // namespace
}  // namespace tavrelin
