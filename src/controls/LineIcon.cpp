#include "controls/LineIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace tavrelin {

namespace {

QColor TextColor(QIcon::Mode mode) {
  const QPalette palette = QGuiApplication::palette();
  if (mode == QIcon::Disabled) return palette.color(QPalette::Disabled, QPalette::WindowText);
  if (mode == QIcon::Selected) return palette.color(QPalette::HighlightedText);
  return palette.color(QPalette::Active, QPalette::WindowText);
}

class LineIconEngine : public QIconEngine {
 public:
  explicit LineIconEngine(QByteArray drawing) : drawing_(std::move(drawing)) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
    QByteArray colored = drawing_;
    colored.replace("#000000", TextColor(mode).name().toLatin1());
    QSvgRenderer(colored).render(painter, place);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return new LineIconEngine(*this); }

 private:
  QByteArray drawing_;
};

}  // namespace

QIcon LineIcon(const QString& name) {
  QFile file(QLatin1String(":/icons/") + name + QLatin1String(".svg"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new LineIconEngine(file.readAll()));
}

}  // namespace tavrelin
