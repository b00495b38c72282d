#pragma once

#include <QDate>
#include <QString>

namespace tavrelin {

/// The day of the sample's open tournament. Fixed, so that the same file comes out on any day.
inline constexpr int SampleYear = 2026;
QDate SampleDay();

/// Makes a club file to try things on: 120 invented players of all divisions, 16 teams, two past
/// tournaments with their results, an open one with a class of 12 that is half played and a class
/// of 7 that waits for its pairing, and three leagues after twelve evenings. All games are pitched
/// by dice; the same seed gives the same club. The file appears whole; refused when one of that
/// name exists.
void MakeSampleClub(const QString& path, unsigned seed = 40);

}  // namespace tavrelin
