#include "players/ProfileColumns.h"

#include "players/Vocabulary.h"

namespace tavrelin {

namespace {

constexpr const char* TelephonePicture = "(000)000-0000";

QList<GridColumn> NameAndCardColumns() {
  return {
      {.caption = "ID", .field = "PlayerID", .visible = false, .maxLength = 6},
      {.caption = "First",
       .field = "FirstName",
       .width = 1005,
       .maxLength = 20,
       .spokenCaption = "First name"},
      {.caption = "Last",
       .field = "LastName",
       .width = 1200,
       .maxLength = 25,
       .spokenCaption = "Last name"},
      {.caption = "Type",
       .field = "MembershipType",
       .width = 1005,
       .editor = CellEditor::List,
       .values = MembershipTypes(),
       .defaultValue = DefaultMembershipType(),
       .spokenCaption = "Membership type"},
      {.caption = "Division",
       .field = "Category",
       .width = 1005,
       .editor = CellEditor::List,
       .values = Divisions()},
      {.caption = "Card",
       .field = "CardNumber",
       .width = 705,
       .maxLength = 6,
       .sort = SortKind::Numeric,
       .compact = true,
       .spokenCaption = "Card number"},
      {.caption = "Year",
       .field = "CardYear",
       .width = 645,
       .maxLength = 4,
       .compact = true,
       .spokenCaption = "Card year"},
  };
}

QList<GridColumn> AddressColumns() {
  return {
      {.caption = "Address", .field = "AddressOne", .width = 1860, .position = 12, .maxLength = 40},
      {.caption = "City", .field = "City", .width = 1395, .position = 13, .maxLength = 30},
      {.caption = "St",
       .field = "State",
       .width = 600,
       .position = 14,
       .editor = CellEditor::List,
       .spokenCaption = "State"},
      {.caption = "Zip-Postal",
       .field = "ZipCode",
       .width = 1050,
       .position = 15,
       .fetchData = true},
  };
}

QList<GridColumn> FigureColumns() {
  return {
      {.caption = "Yrs",
       .field = "Longevity",
       .width = 525,
       .position = 8,
       .sort = SortKind::Numeric,
       .compact = true,
       .spokenCaption = "Years of membership"},
      {.caption = "Birth Date",
       .field = "BirthDate",
       .width = 1140,
       .position = 10,
       .editor = CellEditor::Date,
       .picture = "mm/dd/yyyy",
       .sort = SortKind::Date},
      {.caption = "Phone",
       .field = "Telephone",
       .width = 1200,
       .position = 11,
       .picture = TelephonePicture},
      {.caption = "Remarks", .field = "Remarks", .width = 2805, .position = 16, .maxLength = 255},
      {.caption = "Rgr %",
       .field = "Average",
       .width = 705,
       .position = 9,
       .editor = CellEditor::Number,
       .picture = "#0.00",
       .alignment = Qt::AlignRight,
       .sort = SortKind::Numeric,
       .compact = true,
       .spokenCaption = "Ringer percent"},
  };
}

QList<GridColumn> OtherColumns() {
  return {
      {.caption = "Cell Phone", .field = "CellPhone", .width = 1200, .picture = TelephonePicture},
      {.caption = "E-Mail", .field = "Email", .width = 2505, .maxLength = 60},
      {.caption = "Emergency Info", .field = "EmergencyInfo", .width = 2805, .maxLength = 255},
      {.caption = "Awards", .field = "Awards", .width = 2805, .maxLength = 255},
  };
}

}  // namespace

// Where the columns proper tell no limit, that of the file holds, so that nobody types a remark
// that can't be kept.
QList<GridColumn> ProfileColumns() {
  return NameAndCardColumns() + AddressColumns() + FigureColumns() + OtherColumns();
}

}  // namespace tavrelin
