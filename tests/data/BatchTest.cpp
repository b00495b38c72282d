#include "support/ClubFixture.h"

namespace tavrelin {
namespace {

struct BatchTest : ClubFixture {
  BatchTest() { Run("CREATE TABLE Games (Court TEXT(3))"); }
  void Insert(const char* court) { Run("INSERT INTO Games VALUES(?)", {Value(court)}); }
  QString InFile() { return Raw("SELECT group_concat(Court, ' ') FROM Games"); }
};

TEST_F(BatchTest, CommitsAtTheEndOfItsScope) {
  {
    Batch batch(connection);
    Insert("a");
    Insert("b");
    EXPECT_EQ(InFile(), "");
  }
  EXPECT_EQ(InFile(), "a b");
}

TEST_F(BatchTest, RowsWrittenBeforeAFailureStay) {
  EXPECT_THROW(
      {
        Batch batch(connection);
        Insert("a");
        Insert("too long");
        Insert("c");
      },
      Error);
  EXPECT_EQ(InFile(), "a");
}

TEST_F(BatchTest, CommitReportsAndTheScopesEndDoesNothingMore) {
  Batch batch(connection);
  Insert("a");
  batch.Commit();
  EXPECT_EQ(InFile(), "a");
  Insert("b");
  EXPECT_EQ(InFile(), "a b");
}

TEST_F(BatchTest, RollbackGivesTheWholeBatchUp) {
  {
    Batch batch(connection);
    Insert("a");
    batch.Rollback();
  }
  EXPECT_EQ(InFile(), "");
}

TEST_F(BatchTest, OneWithinAnotherJoinsIt) {
  {
    Batch outer(connection);
    Insert("a");
    {
      Batch inner(connection);
      Insert("b");
    }
    EXPECT_EQ(InFile(), "");
    {
      Batch inner(connection);
      Insert("c");
      inner.Rollback();
    }
    Insert("d");
  }
  EXPECT_EQ(InFile(), "a b d");
}

TEST_F(BatchTest, AFailedCommitIsReportedAndNothingOfItIsInTheFile) {
  const QString aside = folder.filePath("Aside.mdb");
  Batch batch(connection);
  Insert("a");
  ASSERT_TRUE(QFile::rename(path, aside));
  EXPECT_THROW(batch.Commit(), Error);
  ASSERT_TRUE(QFile::rename(aside, path));
  EXPECT_EQ(InFile(), "");
  Insert("b");
  EXPECT_EQ(InFile(), "b");
}

TEST_F(BatchTest, EditsOfARecordsetBelongToIt) {
  Insert("a");
  Recordset rows;
  rows.Open("SELECT * FROM Games", connection, Recordset::Lock::Optimistic);
  {
    Batch batch(connection);
    rows.Set("Court", "b");
    rows.Update();
    EXPECT_EQ(InFile(), "a");
  }
  EXPECT_EQ(InFile(), "b");
}

TEST_F(BatchTest, NeedsAnOpenFile) {
  Connection closed;
  EXPECT_THROW(Batch{closed}, Error);
}

}  // namespace
}  // namespace tavrelin
