#pragma once

/// The unit of every stored and laid-out length: 1440 twips are one inch. Conversions use the logical resolution of the
/// primary screen; without a screen (rules under test) they use 96 dots per inch.
namespace Twips {

constexpr int PerInch = 1440;

/// The largest size that a row or a column can have, in twips.
constexpr int LargestSize = 15000000;

/// Twips in one horizontal or vertical screen pixel, greater than 0 (15 at 96 dots per inch).
double perPixelX();
double perPixelY();

/// Lengths rounded to the nearest whole pixel or twip.
int toPixelsX(int twips);
int toPixelsY(int twips);
int fromPixelsX(int pixels);
int fromPixelsY(int pixels);

} // namespace Twips
