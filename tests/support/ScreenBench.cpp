#include "support/ScreenBench.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QPalette>
#include <QTest>
#include <stdexcept>

#include "data/Connection.h"
#include "data/Schema.h"
#include "shell/MessageBar.h"

namespace tavrelin {

namespace {

// What frmStartUp leaves a screen on a 1366 by 768 laptop, with the desktop's bar and its own.
constexpr QSize ScreenSize(1150, 640);

/// A new club's file, delivered once a process and copied after that.
QString CopyNewClub(const QString& path) {
  static const QTemporaryDir folder;
  static const QString original = folder.filePath(QStringLiteral("new.mdb"));
  if (!QFile::exists(original)) DeliverClubFile(original);
  EXPECT_TRUE(QFile::copy(original, path));
  return path;
}

}  // namespace

ScreenBench::ScreenBench() : ScreenBench(QString()) {}

ScreenBench::ScreenBench(const QString& clubFile)
    : clubFile_(clubFile.isEmpty() ? CopyNewClub(PathOf(QStringLiteral("club.mdb"))) : clubFile),
      store_(std::make_unique<Store>(PathOf(QStringLiteral("store.ini")))) {
  DatabasePath = ClubFile();
  ConnectString = ConnectStringFor(DatabasePath);
}

ScreenBench::~ScreenBench() {
  // As a window is closed: hidden first, so that the screen ends its edits while all of it stands.
  if (host_) host_->hide();
  host_.reset();
  ConnectString.clear();
  DatabasePath.clear();
  EXPECT_EQ(person.Unused(), 0) << "answers were prepared that nobody asked for";
}

Surroundings ScreenBench::around() {
  return {person, clock, clipboard, browser, *store_, printer, progress, errors.Display()};
}

QWidget* ScreenBench::Host() {
  if (host_) return host_.get();
  host_ = std::make_unique<QWidget>();
  host_->resize(ScreenSize);
  return host_.get();
}

void ScreenBench::ShowScreen(Screen* screen) {
  if (screen_) screen_->hide();
  screen_ = screen;
  driven_ = host_.get();
  screen->setGeometry(host_->rect());
  host_->show();
  host_->activateWindow();
  screen->show();
  ProcessEvents();
}

void ScreenBench::Leave() {
  screen_->hide();
  ProcessEvents();
}

void ScreenBench::LeaveAndReturn() {
  Leave();
  screen_->show();
  ProcessEvents();
}

void ScreenBench::Fail(const QString& why) {
  throw std::runtime_error(why.toStdString());
}

bool ScreenBench::Has(const QString& name) const {
  return driven_->objectName() == name || driven_->findChild<QWidget*>(name);
}

QWidget& ScreenBench::FindWidget(const QString& name) {
  if (driven_->objectName() == name) return *driven_;
  // Screens that stand hidden in the same window may hold a control of the same name.
  QWidget* hidden = nullptr;
  for (QWidget* control : driven_->findChildren<QWidget*>(name)) {
    if (control->isVisibleTo(driven_)) return *control;
    if (!hidden) hidden = control;
  }
  if (!hidden) Fail(QStringLiteral("no control is named ") + name);
  return *hidden;
}

void ScreenBench::Click(QWidget& control) {
  QTest::mouseClick(&control, Qt::LeftButton);
  ProcessEvents();
}

void ScreenBench::Click(const QString& name) {
  Click(FindWidget(name));
}

void ScreenBench::Focus(const QString& name) {
  FindWidget(name).setFocus(Qt::TabFocusReason);
  ProcessEvents();
}

void ScreenBench::Type(const QString& text) {
  for (const char32_t character : text.toUcs4()) {
    QWidget* focus = driven_->focusWidget();
    if (!focus) Fail(QStringLiteral("no control has the focus"));
    // QTest types Latin alone; other characters come as from an input method, text without a key.
    if (character < 0x80) {
      QTest::keyClick(focus, static_cast<char>(character));
    } else {
      QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier,
                      QString::fromUcs4(&character, 1));
      QCoreApplication::sendEvent(focus, &press);
    }
  }
  ProcessEvents();
}

void ScreenBench::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* focus = driven_->focusWidget();
  QTest::keyClick(focus ? focus : driven_, key, modifiers);
  ProcessEvents();
}

void ScreenBench::Fill(const QString& name, const QString& text) {
  Focus(name);
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_Delete);
  Type(text);
}

void ScreenBench::Pick(const QString& comboName, const QString& text) {
  auto& combo = Find<QComboBox>(comboName);
  const int row = combo.findText(text);
  if (row < 0) Fail(comboName + QStringLiteral(" offers no ") + text);
  Focus(comboName);
  combo.showPopup();
  QAbstractItemView* list = combo.view();
  list->setCurrentIndex(list->model()->index(row, combo.modelColumn(), combo.rootModelIndex()));
  QTest::keyClick(list, Qt::Key_Return);
  ProcessEvents();
}

QString ScreenBench::FocusName() const {
  const QWidget* focus = driven_->focusWidget();
  return focus ? focus->objectName() : QString();
}

QString ScreenBench::Message() {
  return Find<MessageBar>(QStringLiteral("stsInfo")).Message();
}

bool ScreenBench::Refused() {
  return Find<MessageBar>(QStringLiteral("stsInfo")).IsRefusal();
}

void ScreenBench::ProcessEvents() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

void ScreenBench::Shot(const QString& name) {
  const QString folder = qEnvironmentVariable("TAVRELIN_SHOTS");
  if (folder.isEmpty()) return;
  ProcessEvents();
  QDir().mkpath(folder);
  EXPECT_TRUE(driven_->grab().save(folder + QLatin1Char('/') + name + QLatin1String(".png")));
}

QStringList CutTexts(const QWidget& window) {
  QStringList cut;
  for (const QWidget* control : window.findChildren<QWidget*>()) {
    if (!control->isVisibleTo(&window)) continue;
    QString text;
    if (const auto* label = qobject_cast<const QLabel*>(control)) text = label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(control)) text = button->text();
    if (text.isEmpty()) continue;
    const QSize wanted = control->hasHeightForWidth()
                             ? QSize(0, control->heightForWidth(control->width()))
                             : control->sizeHint();
    const bool fits = wanted.width() <= control->width() && wanted.height() <= control->height();
    const QRect place(control->mapTo(&window, QPoint(0, 0)), control->size());
    if (!fits || !window.rect().contains(place)) {
      cut.append(control->objectName() + QLatin1String(": ") + text);
    }
  }
  return cut;
}

void UseLightPalette() {
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setPalette(QApplication::style()->standardPalette());
}

void UseDarkPalette() {
  QApplication::setStyle(QStringLiteral("Fusion"));
  QPalette dark(QColor(0x31, 0x36, 0x3b), QColor(0x2a, 0x2e, 0x32));
  dark.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
  dark.setColor(QPalette::AlternateBase, QColor(0x23, 0x26, 0x29));
  dark.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
  dark.setColor(QPalette::HighlightedText, QColor(0xfc, 0xfc, 0xfc));
  dark.setColor(QPalette::Link, QColor(0x6c, 0xb8, 0xf0));
  dark.setColor(QPalette::ToolTipBase, QColor(0x31, 0x36, 0x3b));
  dark.setColor(QPalette::ToolTipText, QColor(0xfc, 0xfc, 0xfc));
  QApplication::setPalette(dark);
}

}  // namespace tavrelin
