#pragma once

#include <QString>

namespace tavrelin {

/// The path of the club's file when nobody has chosen another.
inline constexpr char DefaultDatabase[] = "C:\\TavrelinData\\Tavrelin.mdb";
/// Where files go and come from when nobody has chosen another folder.
inline constexpr char DataFolder[] = "C:\\TavrelinData\\";

/// One value of the operator's store: its name, what it reads as until something is stored, and the
/// section it stands in (empty: the root).
struct StoredValue {
  const char* name;
  const char* fallback = "";
  const char* section = "";
  /// A folder under "C:\Program Files", where older programs kept their files, is not used: the
  /// data folder takes its place.
  bool isFolder = false;
};

/// All values that the store keeps, each with its default.
namespace stored {

inline constexpr StoredValue CurrentDatabase{"CurrentDatabase"};  ///< the club's file

/// What the last screen worked on, for the next one to open with.
inline constexpr StoredValue RecentTournament{"RecentTournament"};
inline constexpr StoredValue RecentLeague{"RecentLeague"};

/// Check boxes of Play Singles: "1" is checked.
inline constexpr StoredValue ScoreCheck{"ScoreCheck", "0"};
inline constexpr StoredValue Forfeit{"Forfeit", "0"};
inline constexpr StoredValue BriefReport{"BriefReport", "0"};

inline constexpr StoredValue TournamentPath{"TournamentPath", DataFolder, "", true};
inline constexpr StoredValue LeaguesPath{"LeaguesPath", DataFolder, "", true};
inline constexpr StoredValue ExportProfilePath{"ExportProfilePath", DataFolder, "", true};
inline constexpr StoredValue ExportStatsPath{"ExportStatsPath", DataFolder, "", true};
inline constexpr StoredValue ExportNatStatsPath{"ExportNatStatsPath", DataFolder, "", true};
inline constexpr StoredValue ExportMembershipPath{"ExportMembershipPath", DataFolder, "", true};
inline constexpr StoredValue ExportMembershipState{"ExportMembershipState"};
inline constexpr StoredValue ExportMembershipSanction{"ExportMembershipSanction"};

inline constexpr StoredValue ReturnAddress{"ReturnAddress"};  ///< printed on labels
inline constexpr StoredValue NatStatEmail{"NatStatEmail"};    ///< where national results go

/// Choices of League Reports.
inline constexpr StoredValue HandicapBasis{"HandicapBasis", "Best Player"};
inline constexpr StoredValue StandingsSort{"StandingsSort", "Wins"};
inline constexpr StoredValue GameBasis{"GameBasis", "All Games"};
inline constexpr StoredValue CountTeamWins{"CountTeamWins", "1"};

/// What the export screen hands to the membership transmittal.
inline constexpr StoredValue XmitState{"State", "", "Xmit"};
inline constexpr StoredValue XmitSanctionID{"SanctionID", "", "Xmit"};
inline constexpr StoredValue XmitYear{"Year", "", "Xmit"};
inline constexpr StoredValue XmitReport{"Report", "0", "Xmit"};
/// The tab that the export screen opens on, for one showing.
inline constexpr StoredValue StartTab{"StartTab", "0", "Export"};

/// Size of the preview window in twips.
inline constexpr StoredValue PreviewHeight{"Height", "7200", "frmReport"};
inline constexpr StoredValue PreviewWidth{"Width", "9600", "frmReport"};

/// Numbers of the last membership reports: one section for each state, or league, and year.
inline constexpr StoredValue ExportMembershipReport{"ExportMembershipReport", "0"};
inline constexpr StoredValue LeagueMembershipReport{"LeagueMembershipReport", "1"};

}  // namespace stored

/// The section of those numbers: "MN" and "2025" is "MN2025". It springs up with its first value.
inline QString ReportSection(const QString& stateOrLeague, const QString& year) {
  return stateOrLeague.trimmed() + year.trimmed();
}

}  // namespace tavrelin
