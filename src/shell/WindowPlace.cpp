#include "shell/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "basic/Twips.h"
#include "shell/Store.h"

namespace tavrelin {

namespace {

// The laptop that the program is made for; its bars and the window's frame leave less.
constexpr QSize Laptop(1366, 768);
constexpr QSize LargestAtFirst(1366, 860);
constexpr int FrameAllowance = 40;

int Pixels(const Store& store, const QString& section, const char* name) {
  return PixelsOf(store.GetRegistryString(section, QLatin1String(name)).toInt());
}

bool OnAScreen(const QRect& place) {
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect seen = screen->availableGeometry() & place;
    if (seen.width() >= 200 && seen.height() >= 100) return true;
  }
  return false;
}

QRect PlaceAtFirst(const QRect& room) {
  const QSize size = LargestAtFirst.boundedTo(room.size() - QSize(0, FrameAllowance));
  QRect place(QPoint(), size);
  place.moveCenter(room.center());
  return place;
}

}  // namespace

void ShowWindowAsLeft(QWidget& window, const Store& store) {
  const QString section = window.objectName();
  const QRect left(Pixels(store, section, "Left"), Pixels(store, section, "Top"),
                   Pixels(store, section, "Width"), Pixels(store, section, "Height"));
  const QScreen* screen = QGuiApplication::primaryScreen();
  const bool known = left.isValid() && OnAScreen(left);
  const bool small =
      screen->size().width() <= Laptop.width() || screen->size().height() <= Laptop.height();
  window.setGeometry(known ? left : PlaceAtFirst(screen->availableGeometry()));
  const QString maximized =
      store.GetRegistryString(section, QStringLiteral("Maximized"), small ? "1" : "0");
  if (maximized == QLatin1String("1")) {
    window.showMaximized();
  } else {
    window.show();
  }
}

void StoreWindowPlace(const QWidget& window, Store& store) {
  const QString section = window.objectName();
  const QRect place = window.isMaximized() ? window.normalGeometry() : window.geometry();
  const QList<QPair<const char*, int>> values = {{"Left", place.left()},
                                                 {"Top", place.top()},
                                                 {"Width", place.width()},
                                                 {"Height", place.height()}};
  for (const auto& [name, pixels] : values) {
    store.SaveRegistryString(section, QLatin1String(name), QString::number(TwipsOf(pixels)));
  }
  store.SaveRegistryString(section, QStringLiteral("Maximized"),
                           window.isMaximized() ? QStringLiteral("1") : QStringLiteral("0"));
}

}  // namespace tavrelin
