#include "play/CardJob.h"
#include "play/CardSheets.h"
#include "print/ReportTable.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

TableForm Ruled() {
  TableForm form;
  form.headHeight = 400;
  form.headingsDrop = 50;
  form.rowHeight = 400;
  form.textDrop = 100;
  form.size = 12;
  form.underlined = false;
  form.bold = true;
  form.ruling = Ruling{{200, 1200, 2200, 6200, 7200, 8200, 12200, 13200, 14200}};
  return form;
}

Cell GameNumber(const WorksheetLine& line) {
  return TextCell(QString::number(line.game));
}

ReportTable<WorksheetLine> MakeTable() {
  return ReportTable<WorksheetLine>({{{u"Game"_s, 250, 250}, GameNumber},
                                     {{u"Court"_s, 1250, 1250}, TextOf(&WorksheetLine::court)},
                                     {{u"Player"_s, 2350, 2350}, NameOf(&WorksheetLine::one)},
                                     {{u"Points"_s, 6250}},
                                     {{u"Ringers"_s, 7250}},
                                     {{u"Player"_s, 8350, 8350}, NameOf(&WorksheetLine::two)},
                                     {{u"Points"_s, 12250}},
                                     {{u"Ringers"_s, 13250}}},
                                    Ruled());
}

}  // namespace

void PrintPairWorksheet(OutputTarget& target, const CardJob& job) {
  static const ReportTable<WorksheetLine> table = MakeTable();
  PageForm form;
  form.orientation = Orientation::Landscape;
  form.room = {.top = 600, .limit = 10800, .full = PageFull::PastLimit};
  ReportPages pages(target, form);
  table.Print(pages, job.lines);
}

}  // namespace tavrelin
