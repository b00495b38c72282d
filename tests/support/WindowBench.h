#pragma once

#include <gtest/gtest.h>

#include <QTest>

#include "shell/frmStartUp.h"
#include "shell/StartUp.h"
#include "support/ScreenBench.h"

namespace tavrelin {

/// The whole window on a bench, all its screens made.
struct WindowBench : testing::Test {
  ScreenBench bench;
  StartUp startUp{bench.store(), bench.errors.Display()};
  std::unique_ptr<frmStartUp> window;

  void SetUp() override {
    qputenv("TAVRELIN_DATA", bench.PathOf("TavrelinData").toUtf8());
    qputenv("ODBCINI", bench.PathOf("odbc.ini").toUtf8());
  }
  void TearDown() override {
    window.reset();
    qunsetenv("TAVRELIN_DATA");
    qunsetenv("ODBCINI");
    UseLightPalette();
  }

  void Open(const QList<MakeScreen>& screens) {
    window = std::make_unique<frmStartUp>(bench.around(), startUp, screens);
    window->Form_Load({});
    window->resize(1366, 700);
    window->show();
    window->activateWindow();
    bench.Drive(window.get());
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->AllScreensMade(); }));
  }
  void Go(const QString& group, const QString& item) {
    bench.Click(group);
    bench.Click(group + "/" + item);
  }
  QStringList Visible() {
    QStringList names;
    for (const Screen* screen : window->findChildren<Screen*>()) {
      if (screen->isVisible()) names.append(screen->objectName());
    }
    return names;
  }
  QAction& Command(const char* name) { return *window->findChild<QAction*>(name); }
};

}  // namespace tavrelin
