#include "shell/Application.h"

#include <algorithm>
#include <cstdio>
#include <new>
#include <QEvent>
#include <QFont>
#include <QIcon>
#include <QMetaObject>

static void LoadPictures() {
  Q_INIT_RESOURCE(pictures);
}

namespace tavrelin {

namespace {

constexpr int SearchPause = 1500;  // milliseconds

QFont LargeEnough(QFont font) {
  if (font.pointSizeF() < Application::SmallestFont) {
    font.setPointSizeF(Application::SmallestFont);
  }
  return font;
}

bool IsPainting(QEvent::Type type) {
  return type == QEvent::Paint || type == QEvent::UpdateRequest;
}

void WriteToStandardError(const ErrorReport& report) {
  std::fprintf(stderr, "tavrelin: %s (%d) %s\n", qPrintable(report.description), report.number,
               qPrintable(report.callStack));
}

}  // namespace

void UseTheLook() {
  LoadPictures();
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setFont(LargeEnough(QApplication::font()));
  // In a list of states, "M" and a little later "N" mean MN, not the first one with an N.
  QApplication::setKeyboardInputInterval(SearchPause);
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/pictures/tavrelin.svg")));
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("Tavrelin"));
  setDesktopFileName(QStringLiteral("tavrelin"));
  UseTheLook();
}

bool Application::Failure::SameAs(const Failure& other) const {
  return receiver == other.receiver && painting == other.painting && number == other.number &&
         description == other.description;
}

bool Application::notify(QObject* receiver, QEvent* event) {
  // The receiver may be gone when its handler has thrown, so its name is taken before.
  Failure failure{receiver, IsPainting(event->type()), {}, 51, {}};
  failure.where = receiver->objectName().isEmpty()
                      ? QString::fromLatin1(receiver->metaObject()->className())
                      : receiver->objectName();
  try {
    return QApplication::notify(receiver, event);
  } catch (const Error& error) {
    failure.number = error.number();
    failure.description = error.description();
  } catch (const std::bad_alloc&) {
    failure.number = 7;
    failure.description = tr("Out of memory");
  } catch (const std::exception& other) {
    failure.description = QString::fromUtf8(other.what());
  } catch (...) {
    failure.description = tr("An unexpected failure");
  }
  Report(failure);
  return true;
}

void Application::Report(const Failure& failure) {
  auto same = [&](const Failure& other) { return other.SameAs(failure); };
  if (std::any_of(waiting_.cbegin(), waiting_.cend(), same)) return;
  if (failure.painting) {
    painted_.removeIf([](const Failure& told) { return told.receiver.isNull(); });
    if (std::any_of(painted_.cbegin(), painted_.cend(), same)) return;
    painted_.append(failure);
  }
  waiting_.append(failure);
  if (showing_) return;
  if (failure.painting) {
    // No window may open in the middle of a paint.
    QMetaObject::invokeMethod(
        this, [this] { ShowNext(); }, Qt::QueuedConnection);
  } else {
    ShowNext();
  }
}

void Application::ShowNext() {
  if (showing_) return;
  showing_ = true;
  while (!waiting_.isEmpty()) {
    ShowOne(waiting_.first());
    waiting_.removeFirst();
  }
  showing_ = false;
}

void Application::ShowOne(const Failure& failure) {
  CSError errors(display_ ? display_ : CSError::Display(WriteToStandardError));
  errors.SetMethodName(failure.where);
  errors.DisplayError(Error(failure.number, failure.description));
}

}  // namespace tavrelin
