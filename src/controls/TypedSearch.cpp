#include "controls/TypedSearch.h"

#include "controls/GridEX.h"

namespace tavrelin {

TypedSearch::TypedSearch(GridEX& grid, int pause, Maker maker)
    : QObject(&grid), grid_(grid), maker_(std::move(maker)) {
  timer_.setObjectName(QStringLiteral("Timer1"));
  timer_.setParent(this);
  timer_.setSingleShot(true);
  timer_.setInterval(pause);
  connect(&timer_, &QTimer::timeout, this, &TypedSearch::Clear);
  connect(&grid, &GridEX::Rebound, this, [this] { clone_.reset(); });
}

TypedSearch::Criteria TypedSearch::ByStart(const QString& field, const QString& typed,
                                           const QString& thenSuffix) {
  return {field + QStringLiteral(" LIKE '") + typed + QStringLiteral("%'"),
          field + QStringLiteral(" > '") + typed + thenSuffix + QLatin1Char('\'')};
}

TypedSearch::Criteria TypedSearch::ByNumber(const QString& field, const QString& typed) {
  return {field + QStringLiteral(" >= ") + typed, {}};
}

bool TypedSearch::Belongs(const GridKeyDown& event) const {
  const bool letter = event.key >= Qt::Key_A && event.key <= Qt::Key_Z;
  const bool digit = event.key >= Qt::Key_0 && event.key <= Qt::Key_9;
  const bool plain = !(event.modifiers & ~Qt::KeyboardModifiers(Qt::ShiftModifier));
  return (letter || (digit && digits_)) && plain && (inCells_ || grid_.Col() < 1);
}

bool TypedSearch::KeyDown(GridKeyDown& event) {
  if (!grid_.BoundRecordset() || !Belongs(event)) return false;
  event.swallow = true;
  timer_.start();
  buffer_ += QChar(event.key);
  Search();
  return true;
}

void TypedSearch::Clear() {
  timer_.stop();
  buffer_.clear();
  clone_.reset();
}

Recordset& TypedSearch::Clone() {
  if (!clone_) {
    const Recordset& rows = *grid_.BoundRecordset();
    clone_ = rows.Clone();
    if (!rows.Filter().isEmpty()) clone_->SetFilter(rows.Filter());
    if (!rows.Sort().isEmpty()) clone_->SetSort(rows.Sort());
  }
  return *clone_;
}

void TypedSearch::Search() {
  Recordset& rows = Clone();
  const Criteria criteria = maker_(buffer_);
  if (rows.RecordCount() == 0) return;
  bool found = false;
  for (const QString& criterion : {criteria.first, criteria.then}) {
    if (found || criterion.isEmpty()) continue;
    rows.MoveFirst();
    rows.Find(criterion);
    found = !rows.AtEnd();
  }
  if (!found && elseLast_) rows.MoveLast();
  if ((!found && !elseLast_) || !grid_.MoveToBookmark(rows.CurrentBookmark())) return;
  grid_.EnsureVisible(grid_.Row());
}

}  // namespace tavrelin
