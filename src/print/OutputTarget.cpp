#include "print/OutputTarget.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "basic/Twips.h"
#include "print/Fonts.h"

namespace tavrelin {

namespace {
constexpr double SmallestSize = 4;  // points; below that nobody reads a name
}  // namespace

OutputTarget::OutputTarget(Kind kind) : kind_(kind) {
  document_.pages.append(Page{});
}

int OutputTarget::CurrentX() const {
  return behind_.isEmpty() ? x_ : x_ + tavrelin::TextWidth(behindFont_, behind_);
}

void OutputTarget::SetCurrentX(int x) {
  x_ = x;
  behind_.clear();
}

void OutputTarget::MoveTo(int x, int y) {
  SetCurrentX(x);
  y_ = y;
}

void OutputTarget::MoveBehind(const PageFont& font, const QString& text) {
  SetCurrentX(CurrentX());
  behind_ = text;
  behindFont_ = font;
}

int OutputTarget::LineHeight() const {
  return tavrelin::LineHeight(font_);
}

int OutputTarget::TextWidth(const QString& text) const {
  return tavrelin::TextWidth(font_, text);
}

double OutputTarget::SizeWithin(int width, const QString& text) const {
  const int wide = TextWidth(text);
  if (wide <= width) return font_.size;
  return std::max(SmallestSize, std::floor(font_.size * width / wide * 10) / 10);
}

void OutputTarget::Put(int y, const PageFont& font, const QString& text) {
  if (!text.isEmpty()) ThisPage().marks.append(TextMark{CurrentX(), y, text, font, 0});
}

void OutputTarget::Print(const QString& text) {
  Put(y_, font_, text);
  MoveTo(0, y_ + LineHeight());
}

void OutputTarget::PrintOn(const QString& text) {
  Put(y_, font_, text);
  MoveBehind(font_, text);
}

void OutputTarget::PrintAt(int x, const QString& text) {
  SetCurrentX(x);
  PrintOn(text);
}

void OutputTarget::PrintWithin(int width, const QString& text) {
  PageFont smaller = font_;
  smaller.size = SizeWithin(width, text);
  if (smaller == font_) return PrintOn(text);
  Put(y_ + Ascent(font_) - Ascent(smaller), smaller, text);
  MoveBehind(smaller, text);
}

void OutputTarget::PrintTurned(int angle, const PageFont& font, const QString& text) {
  if (!text.isEmpty()) ThisPage().marks.append(TextMark{CurrentX(), y_, text, font, angle});
}

void OutputTarget::Line(int x1, int y1, int x2, int y2) {
  ThisPage().marks.append(LineMark{x1, y1, x2, y2, TwipsOf(drawWidth_), false});
}

void OutputTarget::Box(int x1, int y1, int x2, int y2) {
  ThisPage().marks.append(LineMark{x1, y1, x2, y2, TwipsOf(drawWidth_), true});
}

void OutputTarget::Draw(const LineMark& rule) {
  ThisPage().marks.append(rule);
}

void OutputTarget::SetOrientation(Orientation orientation) {
  orientation_ = orientation;
  if (IsPageEmpty()) ThisPage().orientation = orientation;
}

void OutputTarget::NewPage() {
  document_.pages.append(Page{orientation_, {}});
  MoveTo(0, 0);
}

void OutputTarget::EndDoc() {
  if (document_.pages.size() > 1 && IsPageEmpty()) document_.pages.removeLast();
}

Document OutputTarget::Take() {
  return std::exchange(*this, OutputTarget(kind_)).document_;
}

Document Record(OutputTarget::Kind kind, const QString& title, const Report& report) {
  OutputTarget target(kind);
  report(target);
  target.EndDoc();
  Document document = target.Take();
  document.title = title;
  return document;
}

}  // namespace tavrelin
