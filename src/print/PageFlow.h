#pragma once

#include <optional>
#include <QList>

namespace tavrelin {

/// When a page takes no further row.
enum class PageFull {
  AtLimit,    ///< when the row would end beyond the limit
  PastLimit,  ///< when it would begin beyond the limit: the row that passes it is the page's last
};

/// The part of a page that rows fill. Distances are twips from the page's top left.
struct PageRoom {
  int top = 0;  ///< where the first row begins, or the headings over it
  std::optional<int> laterTop =
      {};  ///< the same on all pages but the first, if it is elsewhere there
  int limit = 14800;
  PageFull full = PageFull::AtLimit;
  QList<int> columns = {0};  ///< how far to the right each column of rows lies
};

/// Where the rows of a report come: down a column, down the next one, and on to the next page. It
/// knows heights alone, neither fonts nor devices.
///
/// What is taken first in a column stays there, however high it is: no page holds headings alone,
/// and no row is put off for ever.
class PageFlow {
 public:
  explicit PageFlow(const PageRoom& room) : room_(room), y_(room.top) {}

  int Page() const { return page_; }  ///< from 1
  int Left() const { return room_.columns[column_]; }
  int Y() const { return y_; }  ///< where the next thing begins

  /// True when so much room is left, or no row was taken in this column yet.
  bool HasRoom(int height) const { return fresh_ || y_ + height <= room_.limit; }
  /// The room that a row of this height asks for, with something `above` high over it.
  int RoomForRow(int height, int above = 0) const;

  /// Goes to the top of the next column; true when that one is on a new page.
  bool Next();
  /// Goes down past a heading and returns where it begins. Headings alone fill no column.
  int Skip(int height);
  /// Goes down past a row and returns where it begins.
  int Take(int height);

 private:
  PageRoom room_;
  int page_ = 1;
  qsizetype column_ = 0;
  int y_;
  bool fresh_ = true;  ///< no row was taken in this column
};

}  // namespace tavrelin
