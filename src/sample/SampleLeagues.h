#pragma once

#include <QDate>
#include <QList>

namespace tavrelin {

class Connection;
class Dice;
struct SamplePlayer;
struct SampleTeam;

/// How many evenings each league of the sample has behind it.
inline constexpr int SampleNights = 12;

/// Sets up three leagues and pitches their evenings up to `lastNight`: singles with a handicap of
/// 90 % where every ringer counts, singles with cancellation, and eight teams of two. In the first
/// two a member leaves after the fourth evening and another one takes his place; in the third the
/// team with more points of an evening gets a win beside those of its players.
void AddSampleLeagues(Connection& connection, Dice& dice, const QList<SamplePlayer>& players,
                      const QList<SampleTeam>& teams, const QDate& lastNight);

}  // namespace tavrelin
