#include "print/frmReport.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>

#include "basic/Conversions.h"
#include "basic/Error.h"
#include "basic/Twips.h"
#include "print/PageSurface.h"
#include "shell/MessageBar.h"
#include "shell/Store.h"
#include "shell/StoredValues.h"

namespace tavrelin {

namespace {

constexpr int SmallestHeight = 240;
constexpr int LineStep = 40;  // pixels that an arrow key scrolls
constexpr double SmallestZoom = 0.25;
constexpr double LargestZoom = 4;
constexpr double ZoomStep = 1.25;
constexpr int Notch = QWheelEvent::DefaultDeltasPerStep;
constexpr int ToolGap = 8;

int Pixels(const Store& store, const StoredValue& twips) {
  return PixelsOf(static_cast<int>(Val(store.Get(twips))));
}

}  // namespace

frmReport::frmReport(Store& store, QWidget* parent)
    : QDialog(parent),
      store_(store),
      paperTools_(NewRow()),
      zoomTools_(NewRow()),
      picture1_(new QWidget(this)),
      picture2_(new PageSurface(picture1_)),
      vScroll1_(Bar(QStringLiteral("VScroll1"), Qt::Vertical)),
      hScroll1_(Bar(QStringLiteral("HScroll1"), Qt::Horizontal)),
      stsInfo_(new MessageBar(this)) {
  setObjectName(QStringLiteral("frmReport"));
  setWindowTitle(tr("Report Preview"));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  picture1_->setObjectName(QStringLiteral("Picture1"));
  picture1_->setBackgroundRole(QPalette::Dark);
  picture1_->setAutoFillBackground(true);
  picture1_->setFocusPolicy(Qt::StrongFocus);
  picture1_->setAccessibleName(tr("Pages of the report"));
  picture2_->setObjectName(QStringLiteral("Picture2"));
  BuildTools();
  connect(vScroll1_, &QScrollBar::valueChanged, this, &frmReport::VScroll1_Change);
  connect(hScroll1_, &QScrollBar::valueChanged, this, &frmReport::HScroll1_Change);
  setMinimumSize(
      std::max(paperTools_->minimumSizeHint().width(), zoomTools_->minimumSizeHint().width()),
      SmallestHeight);
  SetPagePortrait();
}

frmReport::~frmReport() = default;

QScrollBar* frmReport::Bar(const QString& name, Qt::Orientation orientation) {
  auto* bar = new QScrollBar(orientation, this);
  bar->setObjectName(name);
  bar->setSingleStep(LineStep);
  bar->setAccessibleName(orientation == Qt::Vertical ? tr("Scroll down the pages")
                                                     : tr("Scroll across the page"));
  return bar;
}

QWidget* frmReport::NewRow() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(8, 8, 8, 8);
  layout->setSpacing(8);
  return row;
}

void frmReport::Tool(QAbstractButton* button, const QString& name, const QString& text,
                     const QString& tip, const std::function<void()>& action) {
  button->setObjectName(name);
  button->setText(text);
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  button->setFocusPolicy(Qt::TabFocus);
  button->parentWidget()->layout()->addWidget(button);
  connect(button, &QAbstractButton::clicked, this, action);
}

void frmReport::BuildTools() {
  BuildPaperTools();
  BuildZoomTools();
  for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
}

void frmReport::BuildPaperTools() {
  auto* row = static_cast<QHBoxLayout*>(paperTools_->layout());
  Tool(new QPushButton(paperTools_), QStringLiteral("cmdPrint"), tr("&Print"),
       tr("Print the report"), [this] { Run(actions_.print); });
  Tool(new QPushButton(paperTools_), QStringLiteral("cmdSavePdf"), tr("&Save as PDF..."),
       tr("Save the report as a PDF file"), [this] { Run(actions_.saveAsPdf); });
  page_ = new QLabel(paperTools_);
  page_->setObjectName(QStringLiteral("lblPage"));
  page_->setAlignment(Qt::AlignCenter);
  row->addWidget(page_, 1);
}

void frmReport::BuildZoomTools() {
  auto* row = static_cast<QHBoxLayout*>(zoomTools_->layout());
  Tool(new QToolButton(zoomTools_), QStringLiteral("cmdZoomOut"), QStringLiteral("\u2212"),
       tr("Smaller"), [this] { SetZoom(Zoom() / ZoomStep); });
  zoom_ = new QLabel(zoomTools_);
  zoom_->setObjectName(QStringLiteral("lblZoom"));
  zoom_->setMinimumWidth(zoom_->fontMetrics().horizontalAdvance(QStringLiteral("400%")));
  zoom_->setAlignment(Qt::AlignCenter);
  row->addWidget(zoom_);
  Tool(new QToolButton(zoomTools_), QStringLiteral("cmdZoomIn"), QStringLiteral("+"), tr("Larger"),
       [this] { SetZoom(Zoom() * ZoomStep); });
  Tool(new QPushButton(zoomTools_), QStringLiteral("cmdFitWidth"), tr("Fit &Width"),
       tr("Fit the page to the window"), [this] { FitWidth(); });
  Tool(new QPushButton(zoomTools_), QStringLiteral("cmdClose"), tr("&Close"),
       tr("Close the preview"), [this] { reject(); });
}

// Side by side, and one below the other in a window too narrow for that. Returns their foot.
int frmReport::PlaceTools() {
  const QSize zoom = zoomTools_->sizeHint();
  const bool fit = paperTools_->sizeHint().width() + zoom.width() <= width();
  const int below = fit ? 0 : zoom.height() - ToolGap;
  paperTools_->setGeometry(0, 0, fit ? width() - zoom.width() : width(), zoom.height());
  zoomTools_->setGeometry(width() - zoom.width(), below, zoom.width(), zoom.height());
  return below + zoom.height();
}

void frmReport::SetPagePortrait() {
  picture2_->SetPageSize(PreviewPage(Orientation::Portrait));
}

void frmReport::SetPageLandscape() {
  picture2_->SetPageSize(PreviewPage(Orientation::Landscape));
}

void frmReport::NewPagePortrait() {
  const QSize size = picture2_->PageSize();
  picture2_->SetPageSize({size.width(), size.height() + 1000});
}

void frmReport::NewPageLandscape() {
  const QSize size = picture2_->PageSize();
  picture2_->SetPageSize({size.width(), size.height() + 800});
}

void frmReport::SetDocument(const Document& document, Actions actions) {
  actions_ = std::move(actions);
  picture2_->SetDocument(document);
  bool first = true;
  for (const Page& page : document.pages) {
    const bool landscape = page.orientation == Orientation::Landscape;
    if (first) {
      landscape ? SetPageLandscape() : SetPagePortrait();
    } else {
      landscape ? NewPageLandscape() : NewPagePortrait();
    }
    first = false;
  }
  stsInfo_->ClearMessage();
  vScroll1_->setValue(0);
  hScroll1_->setValue(0);
  SetZoom(1);
}

double frmReport::Zoom() const {
  return picture2_->Zoom();
}

// The page in view stays in view.
void frmReport::SetZoom(double zoom) {
  const double before = Zoom();
  picture2_->SetZoom(std::clamp(zoom, SmallestZoom, LargestZoom));
  const int top = qRound(vScroll1_->value() * Zoom() / before);
  Form_Resize();
  vScroll1_->setValue(top);
  ShowPlace();
}

void frmReport::FitWidth() {
  SetZoom(static_cast<double>(picture1_->width()) / picture2_->PageSize().width());
}

int frmReport::CurrentPage() const {
  return picture2_->PageAt(vScroll1_->value() + picture1_->height() / 2);
}

void frmReport::GoToPage(int page) {
  vScroll1_->setValue(picture2_->TopOfPage(std::clamp(page, 1, picture2_->PageCount())));
}

void frmReport::ShowPlace() {
  page_->setText(tr("Page %1 of %2").arg(CurrentPage()).arg(picture2_->PageCount()));
  zoom_->setText(tr("%1%").arg(qRound(Zoom() * 100)));
}

void frmReport::Run(const std::function<QString()>& action) {
  stsInfo_->ClearMessage();
  try {
    if (action) stsInfo_->ShowNews(action());
  } catch (const Error& error) {
    stsInfo_->ShowRefusal(error.description());
  }
}

void frmReport::Form_Load() {
  QSize size(Pixels(store_, stored::PreviewWidth), Pixels(store_, stored::PreviewHeight));
  size = size.expandedTo(minimumSize()).boundedTo(screen()->availableSize());
  resize(size);
  loaded_ = this->size();
}

// A size the operator did not touch is left as it is stored: twips do not all fall on pixels.
void frmReport::Form_Unload() {
  if (isMaximized() || size() == loaded_) return;
  store_.Save(stored::PreviewHeight, QString::number(TwipsOf(height())));
  store_.Save(stored::PreviewWidth, QString::number(TwipsOf(width())));
}

void frmReport::Form_Resize() {
  const int top = PlaceTools();
  const int foot = stsInfo_->sizeHint().height();
  const int across = vScroll1_->sizeHint().width();
  const int down = hScroll1_->sizeHint().height();
  const QSize view(std::max(0, width() - across), std::max(0, height() - top - foot - down));
  picture1_->setGeometry(0, top, view.width(), view.height());
  vScroll1_->setGeometry(view.width(), top, across, view.height());
  hScroll1_->setGeometry(0, top + view.height(), view.width(), down);
  stsInfo_->setGeometry(0, height() - foot, width(), foot);
  vScroll1_->setRange(0, std::max(0, picture2_->height() - view.height()));
  hScroll1_->setRange(0, std::max(0, picture2_->width() - view.width()));
  vScroll1_->setPageStep(view.height());
  hScroll1_->setPageStep(view.width());
  HScroll1_Change();
  ShowPlace();
}

void frmReport::VScroll1_Change() {
  picture2_->move(picture2_->x(), -vScroll1_->value());
  ShowPlace();
}

// A page narrower than the window stands in its middle.
void frmReport::HScroll1_Change() {
  const int free = std::max(0, picture1_->width() - picture2_->width());
  picture2_->move(free / 2 - hScroll1_->value(), -vScroll1_->value());
}

void frmReport::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    Form_Load();
    picture1_->setFocus();
  }
  QDialog::showEvent(event);
}

void frmReport::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  Form_Resize();
}

void frmReport::done(int result) {
  Form_Unload();
  QDialog::done(result);
}

// A touchpad tells of a notch in many small turns.
void frmReport::TurnZoom(int angle) {
  turned_ += angle;
  for (; turned_ >= Notch; turned_ -= Notch) SetZoom(Zoom() * ZoomStep);
  for (; turned_ <= -Notch; turned_ += Notch) SetZoom(Zoom() / ZoomStep);
}

void frmReport::wheelEvent(QWheelEvent* event) {
  if (event->modifiers() & Qt::ControlModifier) {
    TurnZoom(event->angleDelta().y());
  } else {
    vScroll1_->setValue(vScroll1_->value() - event->angleDelta().y());
    hScroll1_->setValue(hScroll1_->value() - event->angleDelta().x());
  }
  event->accept();
}

bool frmReport::Scroll(int key) {
  const int view = picture1_->height();
  switch (key) {
    case Qt::Key_Down:
      vScroll1_->setValue(vScroll1_->value() + LineStep);
      return true;
    case Qt::Key_Up:
      vScroll1_->setValue(vScroll1_->value() - LineStep);
      return true;
    case Qt::Key_Right:
      hScroll1_->setValue(hScroll1_->value() + LineStep);
      return true;
    case Qt::Key_Left:
      hScroll1_->setValue(hScroll1_->value() - LineStep);
      return true;
    case Qt::Key_Space:
    case Qt::Key_PageDown:
      vScroll1_->setValue(vScroll1_->value() + view);
      return true;
    case Qt::Key_PageUp:
      vScroll1_->setValue(vScroll1_->value() - view);
      return true;
    case Qt::Key_Home:
      vScroll1_->setValue(0);
      return true;
    case Qt::Key_End:
      vScroll1_->setValue(vScroll1_->maximum());
      return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      SetZoom(Zoom() * ZoomStep);
      return true;
    case Qt::Key_Minus:
      SetZoom(Zoom() / ZoomStep);
      return true;
    case Qt::Key_0:
      SetZoom(1);
      return true;
    case Qt::Key_W:
      FitWidth();
      return true;
    default:
      return false;
  }
}

void frmReport::keyPressEvent(QKeyEvent* event) {
  if (!Scroll(event->key())) QDialog::keyPressEvent(event);
}

}  // namespace tavrelin
