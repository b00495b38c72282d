#pragma once

#include <QComboBox>

namespace tavrelin {

struct Tournament;

/// The box in which a tournament is chosen (`cboTournaments`): picked from the list, the latest
/// first, or typed.
class TournamentBox : public QComboBox {
  Q_OBJECT

 public:
  explicit TournamentBox(QWidget* parent);

  /// Offers these tournaments and shows `preset`, a text as RecentTournament keeps it.
  void Offer(const QList<Tournament>& tournaments, const QString& preset);
  /// Shows the choice before the last one again, where the last one cannot be followed.
  void GoBack();
  /// The number of the tournament whose text is shown; of any other text, the number that it begins
  /// with. Empty when there is none.
  QString SanctionID() const;

 Q_SIGNALS:
  /// Another tournament than before was picked, or the box was left with another text.
  void Chosen();
  /// The same tournament was picked once more.
  void ChosenAgain();

 protected:
  /// A wheel turned over the box scrolls nothing and chooses nothing: players would be entered into
  /// a tournament that nobody meant.
  void wheelEvent(QWheelEvent* event) override;

 private:
  void TextSettled();

  QString settled_, before_;
};

}  // namespace tavrelin
