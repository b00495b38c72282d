#pragma once

#include <memory>
#include <QWidget>

class QSvgRenderer;

namespace tavrelin {

/// A drawing that covers its whole place: scaled until nothing is bare, centered, and cut where it
/// overhangs.
class Backdrop : public QWidget {
  Q_OBJECT

 public:
  /// `file` is an SVG drawing; one that cannot be read leaves the place empty.
  explicit Backdrop(const QString& file, QWidget* parent = nullptr);
  ~Backdrop() override;

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::unique_ptr<QSvgRenderer> drawing_;
};

}  // namespace tavrelin
