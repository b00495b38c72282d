#pragma once

#include <gtest/gtest.h>

#include <QList>
#include <QString>

#include "support/PdfPages.h"

namespace tavrelin {

/// Where a word must begin, twips.
struct Spot {
  QString text;
  double x;
  double y;
};

constexpr double Near = 2;  // twips

/// The word of that text that begins there; null when the page has none.
inline const PdfWord* WordAt(const PdfPages& pdf, const Spot& spot, int page = 1) {
  for (const PdfWord& word : pdf.Words()) {
    if (word.page == page && word.text == spot.text && std::abs(word.x - spot.x) <= Near &&
        std::abs(word.y - spot.y) <= Near) {
      return &word;
    }
  }
  return nullptr;
}

inline std::string WordsOf(const PdfPages& pdf, int page) {
  QString words;
  for (const PdfWord& word : pdf.Words()) {
    if (word.page != page) continue;
    words += QStringLiteral("%1 %2 %3\n").arg(word.x).arg(word.y).arg(word.text);
  }
  return words.toStdString();
}

inline void ExpectSpots(const PdfPages& pdf, const QList<Spot>& spots, int page = 1) {
  for (const Spot& spot : spots) {
    EXPECT_NE(WordAt(pdf, spot, page), nullptr)
        << spot.text.toStdString() << " at " << spot.x << ", " << spot.y << " of page " << page
        << " among\n"
        << WordsOf(pdf, page);
  }
}

}  // namespace tavrelin
