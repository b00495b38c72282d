#pragma once

namespace tavrelin {

inline constexpr int TwipsPerPixel = 15;

/// Twips as logical pixels, to the nearest one.
constexpr int PixelsOf(int twips) {
  const int half = twips < 0 ? -TwipsPerPixel / 2 : TwipsPerPixel / 2;
  return (twips + half) / TwipsPerPixel;
}

constexpr int TwipsOf(int pixels) {
  return pixels * TwipsPerPixel;
}

}  // namespace tavrelin
