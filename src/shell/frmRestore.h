#pragma once

#include <QDialog>
#include <QList>

class QTreeWidget;

namespace tavrelin {

struct ClubBackup;

/// The list of a club file's backups, to choose the one that is put back. Enter and Escape alike
/// leave the file as it is.
class frmRestore : public QDialog {
  Q_OBJECT

 public:
  /// `backups` as BackupsOf tells them: the newest first, and chosen at the start.
  frmRestore(const QString& file, const QList<ClubBackup>& backups, QWidget* parent = nullptr);

  /// The place of the chosen one in the list, from 0; -1 when there is none.
  int Chosen() const;

 private:
  void Fill(const QList<ClubBackup>& backups);
  void LayOut(const QString& file);

  QTreeWidget* lstBackups_;
};

}  // namespace tavrelin
