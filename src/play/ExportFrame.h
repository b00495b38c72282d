#pragma once

#include <QGroupBox>

class QLineEdit;

namespace tavrelin {

struct PlayFormat;

/// The frame "Export" (`Frame4`): where the results go as a text file.
class ExportFrame : public QGroupBox {
  Q_OBJECT

 public:
  ExportFrame(const PlayFormat& format, QWidget* parent);

  /// The folder as the box holds it (see PlatformPath).
  QString Path() const;
  void SetPath(const QString& path);
  QString File() const;
  void SetFile(const QString& file);

 Q_SIGNALS:
  void ExportWanted();

 private:
  QLineEdit* txtPath_;
  QLineEdit* txtFile_;
};

}  // namespace tavrelin
