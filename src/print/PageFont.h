#pragma once

#include <QString>

namespace tavrelin {

/// The present font of an output target, as the reports speak of it.
struct PageFont {
  QString name = QStringLiteral("Arial");
  double size = 10;  ///< points
  int weight = Normal;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;

  static constexpr int Normal = 400;
  static constexpr int Heavy = 700;

  /// Bold and weight are one thing: bold is a weight of 700, and a weight above 550 reads as bold.
  bool Bold() const { return weight > 550; }
  void SetBold(bool bold) { weight = bold ? Heavy : Normal; }

  friend bool operator==(const PageFont&, const PageFont&) = default;
};

}  // namespace tavrelin
