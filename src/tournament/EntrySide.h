#pragma once

#include <functional>
#include <memory>
#include <QWidget>

#include "controls/GridColumn.h"
#include "controls/GridEvents.h"
#include "data/Recordset.h"
#include "tournament/EntryRows.h"

namespace tavrelin {

class Connection;
class GridEX;
class TypedSearch;

/// What makes one tab of the entries screen the tab it is.
struct EntrySideKind {
  EntryKind kind = EntryKind::Players;
  QString listName, listLabel, listCaption;  ///< of the grid to choose from and its heading
  QString entriesName, entriesLabel, entriesCaption;  ///< of the grid of what is entered
  QList<GridColumn> listColumns, entryColumns;
  QString searchField;  ///< of the list, what typing looks for
  QString listEmptyText, entriesEmptyText;
};

/// One tab of the entries screen: a list to choose from at the left, the grid of what is entered at
/// the right, and the rows of both from show to hide.
class EntrySide : public QWidget {
  Q_OBJECT

 public:
  EntrySide(EntrySideKind kind, const GridGuard& guard, QWidget* parent);
  ~EntrySide() override;

  GridEX& list() { return *list_; }
  GridEX& entries() { return *entries_; }
  /// The entries under a cursor of their own, for searches that must not move the grid.
  Recordset& EntryKeys() { return entryKeys_; }

  /// Enter or double click in the list while a tournament is chosen.
  std::function<void()> Selected;

  void ShowList(Connection& connection);
  /// The entries of a tournament in the working order of the screen: by class, the strongest first.
  void ShowEntries(Connection& connection, const QString& sanctionID,
                   EntryFields fields = EntryFields::All);
  void OfferClasses(Connection& connection, const QString& sanctionID);
  /// The cursor on the first row of an entrant, ready for the fee.
  void GoToPayment(const QString& entrant);
  void SetEntriesEnabled(bool enabled);
  /// Drops the rows.
  void Release();

 private:
  void BuildList();
  void BuildEntries();
  void LayOut();
  void List_KeyDown(GridKeyDown& event);
  void Entries_KeyDown(GridKeyDown& event);
  void Entries_ColumnHeaderClick(const QString& column);
  bool IsFirstCell() const;
  void LetEditWhatIsRead();

  EntrySideKind kind_;
  GridEX* list_;
  GridEX* entries_;
  std::unique_ptr<TypedSearch> search_;
  Recordset listRows_, entryRows_, entryKeys_;
};

}  // namespace tavrelin
