#pragma once

#include <functional>
#include <QString>

#include "print/Document.h"

namespace tavrelin {

/// What a report procedure writes on: a present position, a present font, and pages that follow
/// each other. It stands for the printer or for the preview's page surface; which of the two makes
/// no difference to positions, fonts and texts, only to where box scores break their pages.
///
/// All distances are twips (1440 to the inch) from the present page's top left. Pages are Letter:
/// 12240 by 15840 on paper, of which the preview shows 12000 by 15000. Text beyond an edge is
/// neither wrapped nor refused. Nothing here fails: what goes wrong with a device goes wrong when
/// the Document is printed or saved.
class OutputTarget {
 public:
  enum class Kind { Printer, Preview };

  explicit OutputTarget(Kind kind);

  bool IsPrinter() const { return kind_ == Kind::Printer; }

  // Position and font

  int CurrentX() const;
  int CurrentY() const { return y_; }
  void SetCurrentX(int x);
  void SetCurrentY(int y) { y_ = y; }
  void MoveTo(int x, int y);

  /// Arial 10 to begin with; stays as it was left over NewPage.
  PageFont& Font() { return font_; }
  const PageFont& Font() const { return font_; }

  /// Of the present font, measured on the one device that all targets share.
  int LineHeight() const;
  int TextWidth(const QString& text) const;
  /// The present size, or the smaller one, in points, in which the text is no wider than `width`.
  double SizeWithin(int width, const QString& text) const;

  // Writing

  /// Text at the position; then CurrentY one line down and CurrentX at the margin, which is 0.
  void Print(const QString& text = {});
  /// Text at the position; CurrentX moves behind it and the line goes on.
  void PrintOn(const QString& text);
  /// Text at this X of the present line; the line goes on.
  void PrintAt(int x, const QString& text);
  /// As PrintOn, in a smaller size where the text is wider than `width`, on the same baseline: a
  /// name of 45 characters stays whole and clear of the next column.
  void PrintWithin(int width, const QString& text);
  /// Text turned about the position, which stays where it is. For CRotate.
  void PrintTurned(int angle, const PageFont& font, const QString& text);

  /// A rule, or a box by two opposite corners, as wide as DrawWidth. The position stays as it is.
  void Line(int x1, int y1, int x2, int y2);
  void Box(int x1, int y1, int x2, int y2);
  /// The same, of a width of its own.
  void Draw(const LineMark& rule);
  /// Width of rules in the preview's pixels of 15 twips; 1 to begin with.
  void SetDrawWidth(int width) { drawWidth_ = width; }
  int DrawWidth() const { return drawWidth_; }

  // Pages

  /// True while nothing was written on the present page.
  bool IsPageEmpty() const { return document_.pages.last().marks.isEmpty(); }
  /// Holds for the present page while that is empty, else from the next page on.
  void SetOrientation(Orientation orientation);
  /// Ends the page; the next one starts with the position at its top left.
  void NewPage();
  /// Ends the document: a last page on which nothing stands is dropped, unless it is the only one.
  void EndDoc();

  const Document& Written() const { return document_; }
  /// Hands the document over; the target is then at its beginning again.
  Document Take();

 private:
  Page& ThisPage() { return document_.pages.last(); }
  void Put(int y, const PageFont& font, const QString& text);
  void MoveBehind(const PageFont& font, const QString& text);

  Kind kind_;
  Document document_;
  PageFont font_;
  Orientation orientation_ = Orientation::Portrait;
  int x_ = 0;  ///< where `behind_` begins
  int y_ = 0;
  QString behind_;  ///< text that CurrentX stands behind; measured only if somebody asks
  PageFont behindFont_;
  int drawWidth_ = 1;
};

/// A report procedure with all it needs, ready to write itself on whichever target it is handed.
using Report = std::function<void(OutputTarget&)>;

/// Runs a report on a target of that kind and ends its document.
Document Record(OutputTarget::Kind kind, const QString& title, const Report& report);

}  // namespace tavrelin
