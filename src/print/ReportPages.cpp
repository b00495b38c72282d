#include "print/ReportPages.h"

#include "print/OutputTarget.h"

namespace tavrelin {

void PrintLines(OutputTarget& target, const QList<HeadLine>& lines, int right, int down) {
  const PageFont before = target.Font();
  for (const HeadLine& line : lines) {
    target.Font().size = line.size;
    target.Font().SetBold(line.bold);
    target.MoveTo(line.x + right, line.y + down);
    if (line.room > 0) {
      target.PrintWithin(line.room, line.text);
    } else {
      target.PrintOn(line.text);
    }
    target.Print();
  }
  target.Font() = before;
}

ReportPages::ReportPages(OutputTarget& target, const PageForm& form)
    : target_(target), form_(form), flow_(form.room) {
  target_.SetOrientation(form.orientation);
  if (!target_.IsPageEmpty()) target_.NewPage();
  StartPage();
}

void ReportPages::StartPage() {
  if (flow_.Page() == 1 || form_.repeatsHead) PrintLines(target_, form_.head);
  for (const LineMark& rule : form_.rules) target_.Draw(rule);
}

bool ReportPages::MakeRoom(int height) {
  if (flow_.HasRoom(height)) return false;
  if (flow_.Next()) {
    target_.NewPage();
    StartPage();
  }
  return true;
}

void ReportPages::PrintClosing(int x, const QString& text, double size) {
  PrintLines(target_, {{x, 0, text, size, false}}, flow_.Left(), flow_.Y());
}

}  // namespace tavrelin
