#pragma once

#include <QList>
#include <QString>

#include "basic/CodeText.h"

class QComboBox;

namespace tavrelin {

/// Fills a box: people read the texts, each item's data is the code. What the box held before goes.
void Offer(QComboBox& box, const QList<CodeText>& choices);

/// The code of the item that is chosen; empty when none is.
QString ChosenCode(const QComboBox& box);

}  // namespace tavrelin
