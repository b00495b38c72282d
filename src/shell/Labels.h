#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace tavrelin {

/// The two kinds of captions that head a screen and its parts, so that all screens look alike.
QLabel* NewTitle(const QString& name, const QString& text, QWidget* parent);
/// `buddy` (may be null) is what the heading names for the screen reader.
QLabel* NewHeading(const QString& name, const QString& text, QWidget* buddy, QWidget* parent);

}  // namespace tavrelin
