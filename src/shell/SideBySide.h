#pragma once

#include <QList>

class QHBoxLayout;
class QLabel;
class QWidget;

namespace tavrelin {

/// A part of a screen under its heading, and its share of the width against the others.
struct HeadedPart {
  QLabel* heading;
  QWidget* content;
  int share;
};

/// Parts beside each other from left to right; the caller gives the row a place.
QHBoxLayout* SideBySide(const QList<HeadedPart>& parts);

/// Lays out a screen of such parts: the title on top, the message bar at the foot, the parts take
/// the room between them.
void LayOutSideBySide(QWidget* screen, QLabel* title, const QList<HeadedPart>& parts,
                      QWidget* messages);

}  // namespace tavrelin
