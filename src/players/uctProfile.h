#pragma once

#include <memory>

#include "shell/Screen.h"

class QCheckBox;
class QPushButton;

namespace tavrelin {

class TypedSearch;
struct GridColEdit;
struct GridDelete;
struct GridFetchData;
struct GridKeyDown;
struct GridKeyPress;

/// Players / Profile: the roster, one editable grid over all players. A new player is typed in the
/// top row at once; a click on a heading sorts, and typing on the row selector jumps to a name (or
/// to what the roster is sorted by).
class uctProfile : public Screen {
  Q_OBJECT

 public:
  uctProfile(const Surroundings& surroundings, QWidget* parent);
  ~uctProfile() override;

 protected:
  void UserControl_Show() override;
  void UserControl_Hide() override;

 private:
  void UserControl_Initialize();
  void ConnectEvents();
  void LayOut();

  void cmdView_Click();
  void Check1_Click();
  void grdProfile_KeyDown(GridKeyDown& event);
  void grdProfile_KeyPress(GridKeyPress& event);
  void grdProfile_RowColChange(int lastRow, int lastCol);
  void grdProfile_BeforeColEdit(GridColEdit& event);
  void grdProfile_AfterColEdit(GridColEdit& event);
  void grdProfile_BeforeUpdate(GridUpdate& update);
  void grdProfile_AfterUpdate();
  void grdProfile_BeforeDelete(GridDelete& event);
  void grdProfile_ColumnHeaderClick(const QString& column);
  void grdProfile_FetchData(GridFetchData& event);
  QString Typed(const QString& column) const;
  void Retype(const QString& column, const QString& text);
  void SortBy(const QString& field, bool ascending);
  void NameView();

  QCheckBox* Check1_;
  QPushButton* cmdView_;
  GridEX* grdProfile_;
  TypedSearch* search_;
  QString sortColumn_;  ///< the column that typing on the row selector looks in
  bool added_ = false;  ///< a new row was saved and the cursor has not moved on yet
  struct Data;          ///< what lives from show to hide
  std::unique_ptr<Data> data_;
};

}  // namespace tavrelin
