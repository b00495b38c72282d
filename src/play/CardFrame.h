#pragma once

#include <QGroupBox>
#include <QStringList>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace tavrelin {

enum class CardFace;
struct CardChoice;
struct PlayFormat;

/// The frame "Round Robin Cards" (`Frame2`): which face of the cards, which games, whose cards.
class CardFrame : public QGroupBox {
  Q_OBJECT

 public:
  CardFrame(const PlayFormat& format, QWidget* parent);

  /// Offers everybody or one of these entrants, in the order of their numbers.
  void OfferEntrants(const QStringList& names);
  /// For a class with games: usable, up to its highest game.
  void Open(int highestGame);
  /// Empty and disabled.
  void Clear();

  CardChoice Choice() const;
  void SelectFace(CardFace face);
  /// The last game has to be mended.
  void FocusTo();

 Q_SIGNALS:
  void PrintWanted();

 private:
  void BuildControls(const PlayFormat& format);
  void LayOut();

  QRadioButton* optFront_;
  QRadioButton* optBack_;
  QLineEdit* txtFrom_;
  QLineEdit* txtTo_;
  QComboBox* entrants_;
  QCheckBox* chkRRWorksheet_ = nullptr;  ///< singles only
  QPushButton* cmdPrintPair_;
};

}  // namespace tavrelin
