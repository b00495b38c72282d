#include "players/PlayerList.h"

#include "data/Recordset.h"

namespace tavrelin {

namespace {

bool IsOnList(const Recordset& members, const Value& playerID) {
  const int field = members.FieldIndex("PlayerID");
  for (int position = 1; position <= members.RecordCount(); ++position) {
    const QString member = members.CellAt(position, field).Trimmed();
    if (CompareText(member, playerID.Trimmed()) == 0) return true;
  }
  return false;
}

}  // namespace

RowCheck CheckTeam(const RowValues& row) {
  RowCheck check;
  if (row.value("Team").Trimmed().isEmpty()) check.Drop();
  return check;
}

Refusal AddToPlayerList(Recordset& members, const QString& listField, const Value& list,
                        const Value& playerID) {
  if (IsOnList(members, playerID)) return {"Player already in list"};
  try {
    members.AddNew();
    members.Set(listField, list);
    members.Set("PlayerID", playerID);
    members.Update();
  } catch (...) {
    members.CancelUpdate();
    throw;
  }
  const auto added = members.CurrentBookmark();
  members.Requery();
  members.GoTo(added);
  return {};
}

}  // namespace tavrelin
