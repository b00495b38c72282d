#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "basic/CodeText.h"

namespace tavrelin {

/// The divisions of the sport (`Category`), in the order in which every list offers them.
const QList<CodeText>& Divisions();
/// The kinds of membership (`MembershipType`), in the order in which every list offers them.
const QList<CodeText>& MembershipTypes();
/// What a new player is: "S", Standard.
QString DefaultMembershipType();

/// The word for a division code, the code itself where it is none of ours. Case and outer blanks
/// are disregarded.
QString DivisionText(const QString& code);
/// The word for a division beside an entry, shorter for some; "Unknown" for the others and for a
/// code that is none of ours.
QString EntryDivisionText(const QString& code);
/// The word for a membership type, by the same rule.
QString MembershipTypeText(const QString& code);

/// States and provinces that a row can hold: in alphabetical order, "US" for the whole country
/// last.
const QStringList& StateCodes();
/// States and provinces that a filter or a report offers: the same without NA and ZA.
const QStringList& StateFilterCodes();

}  // namespace tavrelin
