#pragma once

#include <QWidget>
#include <utility>

#include "print/Document.h"

namespace tavrelin {

/// `Picture2` of frmReport: all pages of a preview, one below the other, drawn anew from the
/// document at every zoom and only as far as they can be seen.
class PageSurface : public QWidget {
  Q_OBJECT

 public:
  explicit PageSurface(QWidget* parent);

  void SetDocument(const Document& document);
  /// Size of the surface at 100 percent, in pixels of 15 twips.
  void SetPageSize(QSize size);
  QSize PageSize() const { return size_; }
  /// 1.0 is 100 percent.
  void SetZoom(double zoom);
  double Zoom() const { return zoom_; }

  int PageCount() const { return static_cast<int>(document_.pages.size()); }
  /// Where a page begins on the surface, in its present pixels; page counts from 1.
  int TopOfPage(int page) const;
  /// The page that stands at a height of the surface.
  int PageAt(int y) const;
  /// Pages drawn since the last call: tests see by it that hidden pages cost nothing.
  int TakePagesDrawn() { return std::exchange(pagesDrawn_, 0); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Fit();

  Document document_;
  QSize size_;
  double zoom_ = 1;
  int pagesDrawn_ = 0;
};

/// Width and height of a page of the preview in pixels of 15 twips.
QSize PreviewPage(Orientation orientation);

}  // namespace tavrelin
