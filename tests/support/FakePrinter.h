#pragma once

#include <QList>
#include <QStringList>

#include "basic/Error.h"
#include "print/Printer.h"

namespace tavrelin {

/// A printer and a preview that keep what they are given.
class FakePrinter : public Printer {
 public:
  struct Job {
    QString title;
    Document document;
    int copies = 1;  ///< 0 for a preview
  };

  QList<Job> printed;
  QList<Job> previewed;
  bool accepted = true;   ///< false as when there is no printer and the operator would not save
  bool installed = true;  ///< false as when there is none and the operator saves
  QString failure;        ///< the sentence Print throws; empty: it works

  Printed Print(const QString& title, const Report& report, int copies = 1) override {
    Job job{title, Record(OutputTarget::Kind::Printer, title, report), copies};
    if (!failure.isEmpty()) throw Error(errors::Printer, failure);
    if (!accepted) return Printed::Nowhere;
    printed.append(job);
    return installed ? Printed::OnPaper : Printed::InFile;
  }

  void Preview(const QString& title, const Report& report) override {
    previewed.append({title, Record(OutputTarget::Kind::Preview, title, report), 0});
  }
};

/// All texts of a document in the order in which they were printed.
inline QStringList TextsOf(const Document& document) {
  QStringList texts;
  for (const Page& page : document.pages) {
    for (const Mark& mark : page.marks) {
      if (const auto* text = std::get_if<TextMark>(&mark)) texts.append(text->text);
    }
  }
  return texts;
}

}  // namespace tavrelin
