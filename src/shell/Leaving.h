#pragma once

#include <QString>

namespace tavrelin {

/// What a screen is asked to make way for (Screen::MayLeave).
enum class Leaving {
  Aside,   ///< a dialog or another program in front of it; the screen itself stays as it is
  Screen,  ///< another screen, or the opening picture; the operator can be kept to mend a row
  Window,  ///< the end of the window or of the session: nobody can be locked in, so he is asked
};

/// The question about a row that cannot be saved: "Nils Oberg is not saved: Invalid category.
/// Leave without it?" Both may be empty: a row without a name, a failure that was shown elsewhere.
QString LeaveWithoutQuestion(const QString& row, const QString& refusal);

}  // namespace tavrelin
