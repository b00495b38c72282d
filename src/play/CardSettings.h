#pragma once

namespace tavrelin {

class SystemSettings;
struct PlayFormat;

/// How cards stand on paper, by the number under which the Settings screen knows the style.
enum class CardStyle {
  Card = 1,    ///< a card of its own, printed on its front and then on its back
  Folded = 2,  ///< both faces on one sheet, the front upside down, to be folded into a tent
  TwoUp = 3,   ///< two backs on one sheet
};

/// What a club set for its round-robin cards.
struct CardSettings {
  CardStyle style = CardStyle::Card;
  bool backOnly = false;  ///< no fronts are wanted: the selection stays on the back
  /// The warnings of a world tournament: the games of two-up cards are confirmed before they are
  /// printed, and so is a sheet of results with gaps.
  bool confirms = false;
  int down = 0;   ///< twips by which the club moves a card down
  int right = 0;  ///< and to the right

  /// The club's adjustment with the place that the style takes on its sheet.
  int DownShift() const { return style == CardStyle::Card ? down : down + 3200; }
  int RightShift() const { return style == CardStyle::Card ? right : right + 100; }
};

/// Picks them from the club's settings; one that is missing, or holds no number where one belongs,
/// counts as not set. Doubles reads the style as a yes or no: folded or not.
CardSettings ReadCardSettings(const SystemSettings& settings, const PlayFormat& format);

}  // namespace tavrelin
