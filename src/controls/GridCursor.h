#pragma once

#include <functional>
#include <QItemSelectionModel>

namespace tavrelin {

/// The current cell of a grid, shared by its views. Whoever asks to move it (mouse, keys, a screen
/// reader) asks the grid, which may refuse while a row cannot be saved. Nothing is ever selected
/// beside it.
class GridCursor : public QItemSelectionModel {
  Q_OBJECT

 public:
  GridCursor(QAbstractItemModel* model, QObject* parent) : QItemSelectionModel(model, parent) {}

  std::function<void(const QModelIndex&)> ask;

  /// Moves without asking: the grid's own way.
  void Place(const QModelIndex& index) {
    if (index.isValid()) {
      QItemSelectionModel::setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    } else {
      QItemSelectionModel::clearCurrentIndex();
    }
  }

  void setCurrentIndex(const QModelIndex& index, SelectionFlags) override {
    if (index.isValid() && ask) ask(index);
  }
  void select(const QModelIndex&, SelectionFlags) override {}
  void select(const QItemSelection&, SelectionFlags) override {}
  void clearCurrentIndex() override {}
};

}  // namespace tavrelin
