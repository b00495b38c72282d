#pragma once

#include <QList>

namespace tavrelin {

class Connection;

/// One change of a step.
struct LayoutChange {
  enum class Kind {
    CreateTable,
    AddColumn,
    AddZero,  ///< a column that starts as 0 in the rows that are there
    Widen,    ///< a column gets the type `type`, unless it has it already
    Setting,  ///< the row of SystemSettings with the number `id`
    Run,      ///< a statement
  };
  Kind kind;
  const char* table = nullptr;  ///< or the statement, or a prompt that is no longer the present one
  const char* column = nullptr;  ///< or the setting's value
  int id = 0;
  const char* type = nullptr;
};

/// One step of the upgrade: a question to the file, and what is done when the answer calls for it.
struct UpgradeStep {
  enum class Needed {
    Missing,  ///< the question fails: its table or column is not there
    NoRows,   ///< it finds no row; a question that fails ends the upgrade
  };
  const char* probe;
  Needed needed;
  QList<LayoutChange> changes;
  const char* stamp = nullptr;         ///< the version that the file has reached then
  QList<LayoutChange> otherwise = {};  ///< what is done when the step is not needed
};

/// The steps in their order, from the oldest layout to the present one. They are told apart by
/// their probes and not by the version: a file whose version row is damaged walks them all and
/// comes out right.
const QList<UpgradeStep>& UpgradeSteps();

/// Walks all steps on an open file. A change that fails in a step that adds what was missing is
/// passed over, and the next start tries again; any other failure throws Error.
void RunUpgradeSteps(Connection& connection);

}  // namespace tavrelin
