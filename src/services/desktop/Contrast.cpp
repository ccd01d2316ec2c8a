#include "services/desktop/Contrast.h"

#include <QPalette>

#include <cmath>

namespace {

constexpr double ReadableLetters = 4.5;
constexpr double Step = 0.1;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// The brightness that an eye sees, 0 to 1.
double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

} // namespace

double Contrast::between(const QColor &one, const QColor &other)
{
    const auto [darker, brighter] = std::minmax({luminance(one), luminance(other)});
    return (brighter + 0.05) / (darker + 0.05);
}

QColor Contrast::mixed(const QColor &first, const QColor &second, double share)
{
    const auto between = [share](float one, float other) { return float(one * (1 - share) + other * share); };
    return QColor::fromRgbF(between(first.redF(), second.redF()), between(first.greenF(), second.greenF()),
                            between(first.blueF(), second.blueF()));
}

QColor Contrast::towardsText(const QPalette &palette, double strength)
{
    return mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), strength);
}

QColor Contrast::readable(const QColor &colour, const QColor &ground, const QColor &towards)
{
    const QColor opaque = mixed(ground, colour, colour.alphaF());
    QColor shown = opaque;
    for (double share = Step; share < 1 + Step / 2 && between(shown, ground) < ReadableLetters; share += Step)
        shown = mixed(opaque, towards, share);
    return shown;
}

QColor Contrast::readable(const QColor &colour, const QPalette &palette)
{
    return readable(colour, palette.color(QPalette::Window), palette.color(QPalette::WindowText));
}
