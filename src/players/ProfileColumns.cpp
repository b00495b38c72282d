#include "players/ProfileColumns.h"

#include "controls/Columns.h"
#include "players/Vocabulary.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

GridColumn TelephoneColumn(const QString& caption, const QString& field) {
  return TextColumn(caption, field, 1200).Pictured(u"(000)000-0000"_s);
}

GridColumn ZipCodeColumn() {
  GridColumn column = TextColumn(u"Zip-Postal"_s, u"ZipCode"_s, 1050).Placed(15);
  column.fetchData = true;
  return column;
}

QList<GridColumn> NameAndCardColumns() {
  return {
      {.caption = u"ID"_s, .field = u"PlayerID"_s, .visible = false, .maxLength = 6},
      TextColumn(u"First"_s, u"FirstName"_s, 1005, 20).Spoken(u"First name"_s),
      TextColumn(u"Last"_s, u"LastName"_s, 1200, 25).Spoken(u"Last name"_s),
      ListColumn(u"Type"_s, u"MembershipType"_s, 1005, MembershipTypes())
          .Defaulted(DefaultMembershipType())
          .Spoken(u"Membership type"_s),
      ListColumn(u"Division"_s, u"Category"_s, 1005, Divisions()),
      TextColumn(u"Card"_s, u"CardNumber"_s, 705, 6)
          .SortedBy(SortKind::Numeric)
          .Compacted()
          .Spoken(u"Card number"_s),
      TextColumn(u"Year"_s, u"CardYear"_s, 645, 4).Compacted().Spoken(u"Card year"_s),
  };
}

QList<GridColumn> AddressColumns() {
  return {
      TextColumn(u"Address"_s, u"AddressOne"_s, 1860, 40).Placed(12),
      TextColumn(u"City"_s, u"City"_s, 1395, 30).Placed(13),
      StateColumn(600).Placed(14),
      ZipCodeColumn(),
  };
}

QList<GridColumn> FigureColumns() {
  return {
      TextColumn(u"Yrs"_s, u"Longevity"_s, 525)
          .Placed(8)
          .SortedBy(SortKind::Numeric)
          .Compacted()
          .Spoken(u"Years of membership"_s),
      DateColumn(u"Birth Date"_s, u"BirthDate"_s, 1140).Placed(10),
      TelephoneColumn(u"Phone"_s, u"Telephone"_s).Placed(11),
      TextColumn(u"Remarks"_s, u"Remarks"_s, 2805, 255).Placed(16),
      PercentColumn(u"Rgr %"_s, u"Average"_s, 705)
          .Placed(9)
          .Compacted()
          .Spoken(u"Ringer percent"_s),
  };
}

QList<GridColumn> OtherColumns() {
  return {
      TelephoneColumn(u"Cell Phone"_s, u"CellPhone"_s),
      TextColumn(u"E-Mail"_s, u"Email"_s, 2505, 60),
      TextColumn(u"Emergency Info"_s, u"EmergencyInfo"_s, 2805, 255),
      TextColumn(u"Awards"_s, u"Awards"_s, 2805, 255),
  };
}

}  // namespace

// Where the columns proper tell no limit, that of the file holds, so that nobody types a remark
// that can't be kept.
QList<GridColumn> ProfileColumns() {
  return NameAndCardColumns() + AddressColumns() + FigureColumns() + OtherColumns();
}

}  // namespace tavrelin
