#pragma once

#include <QString>

namespace tavrelin {

/// A rule's No: the sentence for the operator, and what it is about. Empty when the rule did what
/// it was asked, or would do it. The answer of everything but a row that is about to be saved,
/// which is a RowCheck; a rule that returns more carries it as a member named `refusal`.
///
///     if (const Refusal refusal = CreatePairing(...)) return Refuse(refusal.sentence);
struct [[nodiscard]] Refusal {
  QString sentence;    ///< empty: nothing is refused
  QString about = {};  ///< the field or choice that has to be mended; mostly empty

  explicit operator bool() const { return !sentence.isEmpty(); }
};

}  // namespace tavrelin
