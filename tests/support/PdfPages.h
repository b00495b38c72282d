#pragma once

#include <QImage>
#include <QList>
#include <QString>

namespace tavrelin {

struct Document;

/// A word as pdftotext finds it in a PDF: where it begins and ends, twips from its page's top left.
struct PdfWord {
  QString text;
  int page = 0;  ///< from 1
  double x = 0;
  double y = 0;
  double right = 0;
  double bottom = 0;
};

/// A PDF file read back by programs that know nothing of this one (poppler-utils).
class PdfPages {
 public:
  /// Writes the document to a temporary file first.
  explicit PdfPages(const Document& document);
  explicit PdfPages(const QString& path);

  const QList<PdfWord>& Words() const { return words_; }
  int PageCount() const { return static_cast<int>(sizes_.size()); }
  /// Width and height in twips.
  QSizeF PageSize(int page) const { return sizes_.value(page - 1); }
  /// The n-th word of that text, on any page; fails the test and gives a word at -1 when there is
  /// none.
  PdfWord Find(const QString& text, int n = 1) const;
  bool Has(const QString& text) const;
  /// All text of the page, as pdftotext -layout gives it.
  QString Text() const;
  /// The page as a picture of one pixel to 10 twips.
  QImage Picture(int page) const;

 private:
  void Read(const QString& path);

  QByteArray pdf_;
  QList<PdfWord> words_;
  QList<QSizeF> sizes_;
};

/// What a program prints on its standard output when `input` is fed to it; fails the test when it
/// ends badly.
QByteArray RunProgram(const QString& program, const QStringList& arguments,
                      const QByteArray& input = {});

}  // namespace tavrelin
