#pragma once

#include "basic/Refusal.h"

namespace tavrelin {

class Connection;
class Recordset;
struct ClassRules;

/// Sets the places of a singles class by hand: stores the `Override` of each row of the standings
/// in its entry and marks the class. Refused when a place stands twice or a row has none (a 0
/// counts as none); the rows before it, by place, stay stored and the class stays unmarked. Leaves
/// the list sorted by `Override`.
Refusal ApplyOverride(Connection& connection, ClassRules& rules, Recordset& standings);

/// Takes the director's places back: clears them in the entries and the class, and gives each
/// row's `Override` its computed `Rank` again.
void RemoveOverride(Connection& connection, ClassRules& rules, Recordset& standings);

}  // namespace tavrelin
