#include <gtest/gtest.h>

#include <QDir>

#include "basic/PlatformPath.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

// Sets an environment variable for the length of a test.
class Setting {
 public:
  Setting(const char* name, const QByteArray& value) : name_(name), before_(qgetenv(name)) {
    qputenv(name, value);
  }
  ~Setting() { before_.isNull() ? qunsetenv(name_) : qputenv(name_, before_); }

 private:
  const char* name_;
  QByteArray before_;
};

TEST(PlatformPath, TheDataFolderIsInTheUsersHome) {
  const Setting noFolder("TAVRELIN_DATA", "");
  const QString home = QDir::homePath();
  const QList<QPair<QString, QString>> cases = {
      {u"C:\\TavrelinData\\Tavrelin.mdb"_qs, home + u"/TavrelinData/Tavrelin.mdb"_qs},
      {u"C:\\TavrelinData\\"_qs, home + u"/TavrelinData/"_qs},
      {u"C:\\TavrelinData"_qs, home + u"/TavrelinData"_qs},
      {u"c:\\tavrelindata\\Old\\a b.txt"_qs, home + u"/TavrelinData/Old/a b.txt"_qs},
      {u"C:/TavrelinData/x.txt"_qs, home + u"/TavrelinData/x.txt"_qs},
      {u"C:\\TavrelinDataOld\\x.txt"_qs, home + u"/TavrelinDataOld/x.txt"_qs},
      {u"C:\\Temp\\x.txt"_qs, home + u"/Temp/x.txt"_qs},
      {u"D:\\Backup\\x.txt"_qs, home + u"/Backup/x.txt"_qs},
      {u"D:\\TavrelinData\\x.txt"_qs, home + u"/TavrelinData/x.txt"_qs},
      {u"E:x.txt"_qs, home + u"/x.txt"_qs},
      {u"C:\\"_qs, home + u"/"_qs},
  };
  for (const auto& [stored, path] : cases) EXPECT_EQ(PlatformPath(stored), path);
}

TEST(PlatformPath, AnotherDataFolderCanBeNamed) {
  const Setting folder("TAVRELIN_DATA", "/srv/club");
  EXPECT_EQ(PlatformPath(u"C:\\TavrelinData\\Tavrelin.mdb"_qs), u"/srv/club/Tavrelin.mdb");
  EXPECT_EQ(PlatformPath(u"D:\\x.txt"_qs), QDir::homePath() + u"/x.txt"_qs);
}

TEST(PlatformPath, PathsOfThePlatformGoThrough) {
  for (const auto& path : {u""_qs, u"/home/ann/club.mdb"_qs, u"club.mdb"_qs, u"../a/b.txt"_qs,
                           u"/srv/É/x y.txt"_qs, u"/"_qs}) {
    EXPECT_EQ(PlatformPath(path), path);
  }
  EXPECT_EQ(PlatformPath(u"/home/ann\\Results.txt"_qs), u"/home/ann/Results.txt");
}

}  // namespace
}  // namespace tavrelin
