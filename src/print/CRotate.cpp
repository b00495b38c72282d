#include "print/CRotate.h"

#include <cmath>

#include "basic/Error.h"
#include "print/OutputTarget.h"

namespace tavrelin {

namespace {

constexpr int DotsPerInch = 1440;  // of the target: a dot is a twip
constexpr qsizetype FaceNameLength = 31;

// A turned font is made in whole dots, as devices make theirs, and of a face name that fits the 32
// bytes of a logical font.
PageFont LogicalFont(const PageFont& font) {
  PageFont logical = font;
  logical.name.truncate(FaceNameLength);
  const int height = static_cast<int>(std::lround(DotsPerInch * font.size)) / 72;
  logical.size = height * 72.0 / DotsPerInch;
  return logical;
}

}  // namespace

void CRotate::PrintText(const QString& text) const {
  if (device_ == nullptr) throw Error(errors::NoObject, QStringLiteral("No device to print on"));
  device_->PrintTurned(angle_, LogicalFont(device_->Font()), text);
}

}  // namespace tavrelin
