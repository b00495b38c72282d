#pragma once

#include <QDialog>

#include "shell/CSError.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace tavrelin {

class Clipboard;

/// The one dialog of unexpected failures. It opens low, with the sentence that matters; "Details"
/// brings description, number and call stack into view. Enter always dismisses it.
class frmError : public QDialog {
  Q_OBJECT

 public:
  /// Heights of the dialog in twips. With a font so large that its texts would be cut, the dialog
  /// is as high as it needs.
  static constexpr int ShortHeight = 2475;
  static constexpr int FullHeight = 6345;

  frmError(const ErrorReport& report, Clipboard& clipboard, QWidget* parent = nullptr);

  /// Where a dialog that has grown goes, all in pixels: `top` when it still ends on the screen,
  /// else centered, and never above the screen.
  static int TopOf(int top, int height, int screenHeight);

  /// The text that goes to the clipboard.
  static QString CopyText(const ErrorReport& report);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void cmdDetails_Click();
  void cmdCopy_Click();

  QPlainTextEdit* AddText(const char* name, const QString& accessibleName, const QString& text);
  QPushButton* AddButton(const char* name, const QString& caption);
  QLabel* AddLabel(const char* name, const QString& caption);
  QWidget* MakeDetails();
  void SetHeight(int twips);

  ErrorReport report_;
  Clipboard& clipboard_;
  QPlainTextEdit* txtGeneralMessage_;
  QPlainTextEdit* txtDescription_;
  QPlainTextEdit* txtCallStack_;
  QPushButton* cmdDetails_;
  QPushButton* cmdCopy_;
  QPushButton* cmdOk_;
  QWidget* details_;
};

/// Shows a report in frmError over the active window and waits: what every screen's CSError is
/// given. The clipboard must outlive it.
CSError::Display ErrorDialog(Clipboard& clipboard);

}  // namespace tavrelin
