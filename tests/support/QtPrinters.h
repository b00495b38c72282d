#pragma once

#include <ostream>
#include <QString>
#include <QStringList>

#include "basic/Value.h"

// GoogleTest shows Qt's texts as people read them.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* out) {
  *out << '"' << texts.join(QStringLiteral("\", \"")).toStdString() << '"';
}

namespace tavrelin {

// The kind stands beside the text: the whole number 5 and the text "5" are different values.
inline void PrintTo(const Value& value, std::ostream* out) {
  static constexpr const char* kinds[] = {"null", "yes/no", "whole", "floating", "text", "date"};
  *out << kinds[static_cast<int>(value.kind())] << " \"" << value.ToText().toStdString() << '"';
}

}  // namespace tavrelin
