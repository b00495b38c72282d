#pragma once

#include <functional>
#include <QDialog>
#include <QString>

#include "print/OutputTarget.h"

class QAbstractButton;
class QLabel;
class QScrollBar;

namespace tavrelin {

class MessageBar;
class PageSurface;
class Store;

/// The preview window, "Report Preview": the pages of a report one below the other, at any zoom,
/// with the ways out of it: print, save as PDF, close. One instance serves all previews; its size
/// is kept in the store, in twips, from one preview to the next.
class frmReport : public QDialog {
  Q_OBJECT

 public:
  /// What its two buttons do; they return the news for the status bar, empty when the operator
  /// would not, and throw Error.
  struct Actions {
    std::function<QString()> print;
    std::function<QString()> saveAsPdf;
  };

  /// The store must outlive the window.
  explicit frmReport(Store& store, QWidget* parent = nullptr);
  ~frmReport() override;

  void SetPagePortrait();   ///< the page surface is one portrait page
  void SetPageLandscape();  ///< the page surface is one landscape page
  void NewPagePortrait();   ///< the page surface grows by a portrait page
  void NewPageLandscape();  ///< the page surface grows by a landscape page

  /// Sets up the pages of a document; what an earlier preview left is gone.
  void SetDocument(const Document& document, Actions actions);

  /// 1.0 is 100 percent; between 0.25 and 4.
  void SetZoom(double zoom);
  double Zoom() const;
  void FitWidth();
  int CurrentPage() const;
  void GoToPage(int page);

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void done(int result) override;

 private:
  void Form_Load();
  void Form_Resize();
  void Form_Unload();
  void VScroll1_Change();
  void HScroll1_Change();

  void BuildTools();
  void BuildPaperTools();
  void BuildZoomTools();
  QWidget* NewRow();
  /// A button at the end of a row; pressing it leaves the keyboard with the pages.
  void Tool(QAbstractButton* button, const QString& name, const QString& text, const QString& tip,
            const std::function<void()>& action);
  int PlaceTools();
  QScrollBar* Bar(const QString& name, Qt::Orientation orientation);
  bool Scroll(int key);
  void TurnZoom(int angle);
  void Run(const std::function<QString()>& action);
  void ShowPlace();

  Store& store_;
  Actions actions_;
  QWidget* paperTools_;
  QWidget* zoomTools_;
  QWidget* picture1_;
  PageSurface* picture2_;
  QScrollBar* vScroll1_;
  QScrollBar* hScroll1_;
  QLabel* page_ = nullptr;
  QLabel* zoom_ = nullptr;
  MessageBar* stsInfo_;
  QSize loaded_;    ///< the size Form_Load gave the window
  int turned_ = 0;  ///< what the wheel was turned with Ctrl down, short of a notch
};

}  // namespace tavrelin
