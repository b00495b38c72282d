#include "shell/CSError.h"

#include <new>

namespace tavrelin {

namespace {

constexpr QLatin1String Mark("[CSError]");

QString WithoutMark(const QString& description) {
  return description.startsWith(Mark) ? description.sliced(Mark.size()) : description;
}

}  // namespace

CSError::CSError(Display display) : display_(std::move(display)) {}

void CSError::SetMethodName(const QString& name) {
  methodName_ = name;
  callStack_ = callStack_.isEmpty() ? name : name + QLatin1Char('~') + callStack_;
}

void CSError::Clear() {
  if (raising_) return;
  generalMessage_.clear();
  description_.clear();
  methodName_.clear();
  number_ = 0;
}

void CSError::ClearMethod() {
  const qsizetype cut = callStack_.indexOf(QLatin1Char('~'));
  callStack_ = cut < 0 ? QString() : callStack_.sliced(cut + 1);
}

void CSError::Raise(const Error& error) {
  if (!raising_) BeginRaise(error);
  throw Error(number_, description_, callStack_);
}

void CSError::BeginRaise(const Error& error) {
  raising_ = true;
  number_ = error.number();
  if (error.description().startsWith(Mark)) {
    description_ = error.description();
    callStack_ = error.source() + QLatin1Char('~') + callStack_;
  } else {
    if (generalMessage_.isEmpty()) generalMessage_ = error.description();
    description_ = Mark + generalMessage_ + QLatin1Char('~') + error.description();
  }
}

void CSError::DisplayError(const Error& error, const QString& title) {
  ErrorReport report;
  report.title = title;
  report.number = error.number();
  const QString whole = WithoutMark(error.description());
  const qsizetype cut = whole.indexOf(QLatin1Char('~'));
  report.generalMessage = cut < 0 ? whole : whole.first(cut);
  report.description = cut < 0 ? whole : whole.sliced(cut + 1);
  report.callStack = QString(callStack_).replace(QLatin1Char('~'), QLatin1String("\r\n"));
  if (display_) display_(report);
  Clear();
  raising_ = false;
  callStack_.clear();
}

bool CSError::Run(const char* procedure, const std::function<void()>& body) {
  SetMethodName(QString::fromLatin1(procedure));
  try {
    body();
    ClearMethod();
    return true;
  } catch (const Error& error) {
    DisplayError(error);
  } catch (const std::bad_alloc&) {
    DisplayError(Error(7, QStringLiteral("Out of memory")));
  } catch (const std::exception& failure) {
    DisplayError(Error(51, QString::fromUtf8(failure.what())));
  }
  return false;
}

}  // namespace tavrelin
