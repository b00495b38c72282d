#pragma once

#include <QList>
#include <QMap>
#include <QPair>
#include <QString>

#include "basic/Refusal.h"
#include "basic/Value.h"

namespace tavrelin {

/// A row as it stands in the grid, by field name; a field that the grid does not show may be
/// missing and reads null.
using RowValues = QMap<QString, Value>;

/// What a rule answers about a row that is about to be saved. The screen carries it out: writes the
/// fixes into the row, shows the message, asks the question; it decides nothing. A No to anything
/// but a row is a Refusal.
struct [[nodiscard]] RowCheck {
  enum class Verdict {
    Save,     ///< nothing stands against it
    Cancel,   ///< the operator stays on the row to mend it
    Discard,  ///< the row's changes are thrown away
    Undo,     ///< the same, and the operator stays on the row
    Ask,      ///< Yes or No first; then the rule is asked again with the answer
  };

  Verdict verdict = Verdict::Save;
  QString message;  ///< for the first panel, with a beep; empty: nothing is said
  QString title;    ///< of the question, with Verdict::Ask
  QString question;
  QList<QPair<QString, Value>>
      fixes;  ///< field and the value it takes, in order, whatever the verdict

  void Fix(const QString& field, const Value& value) { fixes.append({field, value}); }

  /// The row with no message and no questions so far: refused, the operator stays.
  RowCheck& Refuse(const QString& text) {
    verdict = Verdict::Cancel;
    message = text;
    return *this;
  }
  /// Takes over the No of a rule that looked at the row; nothing when it has none.
  RowCheck& RefuseIf(const Refusal& refusal) { return refusal ? Refuse(refusal.sentence) : *this; }
  RowCheck& Drop(const QString& text = {}) {
    verdict = Verdict::Discard;
    message = text;
    return *this;
  }
  RowCheck& UndoAndStay(const QString& text) {
    verdict = Verdict::Undo;
    message = text;
    return *this;
  }
  RowCheck& AskFirst(const QString& boxTitle, const QString& boxText) {
    verdict = Verdict::Ask;
    title = boxTitle;
    question = boxText;
    return *this;
  }
};

}  // namespace tavrelin
