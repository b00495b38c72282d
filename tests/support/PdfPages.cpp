#include "support/PdfPages.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include "print/Document.h"
#include "print/PdfFile.h"

namespace tavrelin {

namespace {

constexpr double TwipsPerPoint = 20;

double Twips(const QXmlStreamReader& xml, const char* name) {
  return xml.attributes().value(QLatin1String(name)).toDouble() * TwipsPerPoint;
}

}  // namespace

QByteArray RunProgram(const QString& program, const QStringList& arguments,
                      const QByteArray& input) {
  QProcess process;
  process.start(program, arguments);
  process.write(input);
  process.closeWriteChannel();
  EXPECT_TRUE(process.waitForFinished(60000)) << program.toStdString();
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return process.readAllStandardOutput();
}

PdfPages::PdfPages(const Document& document) : pdf_(PdfBytes(document)) {
  Read({});
}

PdfPages::PdfPages(const QString& path) {
  Read(path);
}

void PdfPages::Read(const QString& path) {
  if (!path.isEmpty()) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    pdf_ = file.readAll();
  }
  QXmlStreamReader xml(RunProgram("pdftotext", {"-bbox", "-", "-"}, pdf_));
  while (!xml.atEnd()) {
    if (!xml.readNextStartElement() && !xml.isEndElement()) continue;
    if (!xml.isStartElement()) continue;
    if (xml.name() == QLatin1String("page")) {
      sizes_.append(QSizeF(Twips(xml, "width"), Twips(xml, "height")));
    } else if (xml.name() == QLatin1String("word")) {
      PdfWord word;
      word.page = PageCount();
      word.x = Twips(xml, "xMin");
      word.y = Twips(xml, "yMin");
      word.right = Twips(xml, "xMax");
      word.bottom = Twips(xml, "yMax");
      word.text = xml.readElementText();
      words_.append(word);
    }
  }
}

PdfWord PdfPages::Find(const QString& text, int n) const {
  for (const PdfWord& word : words_) {
    if (word.text == text && --n == 0) return word;
  }
  ADD_FAILURE() << "not in the PDF: " << text.toStdString();
  return {text, 0, -1, -1, -1, -1};
}

bool PdfPages::Has(const QString& text) const {
  for (const PdfWord& word : words_) {
    if (word.text == text) return true;
  }
  return false;
}

QString PdfPages::Text() const {
  return QString::fromUtf8(RunProgram("pdftotext", {"-layout", "-", "-"}, pdf_));
}

QImage PdfPages::Picture(int page) const {
  const QString number = QString::number(page);
  const QByteArray image =
      RunProgram("pdftoppm", {"-r", "144", "-gray", "-f", number, "-l", number, "-"}, pdf_);
  return QImage::fromData(image);
}

}  // namespace tavrelin
