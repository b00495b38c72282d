#pragma once

#include <memory>

#include "shell/Screen.h"

namespace tavrelin {

class TypedSearch;
struct GridKeyDown;

/// Setup / Settings: what belongs to the club's file rather than to a person, one row a setting.
/// Only the values can be changed; rows are neither added nor deleted.
class uctSettings : public Screen {
  Q_OBJECT

 public:
  uctSettings(const Surroundings& surroundings, QWidget* parent);
  ~uctSettings() override;

 protected:
  void UserControl_Show() override;
  void UserControl_Hide() override;

 private:
  void UserControl_Initialize();
  void LayOut();
  void grdSettings_KeyDown(GridKeyDown& event);
  void grdSettings_BeforeUpdate(GridUpdate& update);

  GridEX* grdSettings_;
  TypedSearch* search_;
  struct Data;  ///< what lives from show to hide
  std::unique_ptr<Data> data_;
};

}  // namespace tavrelin
