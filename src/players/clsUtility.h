#pragma once

#include <QString>

class QComboBox;

namespace tavrelin {

class GridEX;

/// Fills the controls of all screens with the states and provinces; each entry's value and text are
/// the code itself.
class clsUtility {
 public:
  /// All codes that a row can hold, as the value list of a grid's column.
  static void LoadStateValueList(GridEX& grid, const QString& column);
  /// The codes that a filter offers; what the combo held before goes.
  static void LoadStateCombo(QComboBox& combo);
};

}  // namespace tavrelin
