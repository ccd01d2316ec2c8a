#pragma once

#include <QColor>

class QPalette;

/// How well colours are told apart, as the guidelines for accessible content measure it.
namespace Contrast {

/// From 1 for colours of the same brightness to 21 for black and white.
double between(const QColor &one, const QColor &other);

/// share is that of the second colour, 0 to 1.
QColor mixed(const QColor &first, const QColor &second, double share);

/// A colour between the window's ground (strength 0) and its text (1).
QColor towardsText(const QPalette &palette, double strength);

/// The colour, moved towards another one until small letters in it can be read on the ground.
QColor readable(const QColor &colour, const QColor &ground, const QColor &towards);
/// The same for letters on a window, moved towards the window's text.
QColor readable(const QColor &colour, const QPalette &palette);

} // namespace Contrast
