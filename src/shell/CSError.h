#pragma once

#include <functional>
#include <QString>

#include "basic/Error.h"

namespace tavrelin {

/// What the dialog of an error shows; filled by CSError, drawn by frmError.
struct ErrorReport {
  QString title;  ///< empty: the dialog's own
  QString generalMessage;
  QString description;
  QString callStack;  ///< one procedure a line, newest first, "\r\n" between
  int number = 0;
};

/// Every screen and class owns one: the trail of procedures entered, and the one way to show an
/// unexpected failure.
class CSError {
 public:
  /// Shows a report and waits until the operator has read it. frmError in the window; tests and the
  /// command line put their own here.
  using Display = std::function<void(const ErrorReport&)>;
  explicit CSError(Display display);

  void SetGeneralMessage(const QString& message) { generalMessage_ = message; }
  const QString& GeneralMessage() const { return generalMessage_; }
  /// Pushes a procedure's name on the call stack.
  void SetMethodName(const QString& name);
  /// The name last set; ClearMethod does not change it.
  const QString& MethodName() const { return methodName_; }
  /// Empties all but the call stack, unless an error is being raised.
  void Clear();
  /// Pops the newest name.
  void ClearMethod();
  /// Passes an error up to a caller's CSError: marks it with the general message and throws it
  /// again with the call stack as its source. While an error is being raised, a further Raise
  /// throws that same error on, whatever it is given.
  [[noreturn]] void Raise(const Error& error);
  /// The last stop of an error: shows it and starts the stack afresh.
  void DisplayError(const Error& error, const QString& title = {});

  /// Runs an event procedure under its name: any exception ends in DisplayError, and the caller
  /// goes on. True when the procedure came to its end.
  bool Run(const char* procedure, const std::function<void()>& body);

  const QString& CallStack() const { return callStack_; }  ///< newest first, joined by "~"

 private:
  void BeginRaise(const Error& error);

  Display display_;
  QString generalMessage_, description_, methodName_, callStack_;
  qint32 number_ = 0;
  bool raising_ = false;
};

}  // namespace tavrelin
