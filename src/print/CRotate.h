#pragma once

#include <QString>

namespace tavrelin {

class OutputTarget;

/// Text at an angle, drawn with the target's present font about its present position. Round-robin
/// cards stand a name upside down with it, so that it reads right once the sheet is folded.
class CRotate {
 public:
  /// Degrees, counter-clockwise; 0 draws as Print would.
  void SetAngle(qint16 angle) { angle_ = angle; }
  qint16 Angle() const { return angle_; }

  /// Draws the text; the target's position stays. Throws Error while no device is set.
  void PrintText(const QString& text) const;

  /// The target to draw on. Not owned; it must outlive every PrintText.
  void SetDevice(OutputTarget& device) { device_ = &device; }

 private:
  OutputTarget* device_ = nullptr;
  qint16 angle_ = 0;
};

}  // namespace tavrelin
