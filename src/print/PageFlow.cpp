#include "print/PageFlow.h"

#include <utility>

namespace tavrelin {

int PageFlow::RoomForRow(int height, int above) const {
  return room_.full == PageFull::AtLimit ? above + height : above;
}

bool PageFlow::Next() {
  column_ = (column_ + 1) % room_.columns.size();
  if (column_ == 0) ++page_;
  y_ = page_ == 1 ? room_.top : room_.laterTop.value_or(room_.top);
  fresh_ = true;
  return column_ == 0;
}

int PageFlow::Skip(int height) {
  return std::exchange(y_, y_ + height);
}

int PageFlow::Take(int height) {
  fresh_ = false;
  return Skip(height);
}

}  // namespace tavrelin
