#include "shell/Leaving.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

// A refusal ends with a full stop or without one.
QString WithoutStop(QString sentence) {
  while (sentence.endsWith(u'.') || sentence.endsWith(u' ')) sentence.chop(1);
  return sentence;
}

}  // namespace

QString LeaveWithoutQuestion(const QString& row, const QString& refusal) {
  const QString name = row.isEmpty() ? u"This row"_s : row;
  const QString reason = WithoutStop(refusal);
  if (reason.isEmpty()) return name + u" is not saved. Leave without it?"_s;
  return name + u" is not saved: "_s + reason + u". Leave without it?"_s;
}

}  // namespace tavrelin
