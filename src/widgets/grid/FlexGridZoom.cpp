#include "widgets/grid/FlexGridZoom.h"

#include "platform/Twips.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::array Steps{50, 60, 70, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300, 350, 400};

int enlarged(int pixels, double exactly)
{
    return pixels > 0 ? std::max(1, int(std::lround(exactly))) : pixels;
}

} // namespace

int FlexGridZoom::stepped(int percent, int steps)
{
    for (; steps > 0; --steps) {
        const auto *above = std::upper_bound(Steps.begin(), Steps.end(), percent);
        percent = above == Steps.end() ? Largest : *above;
    }
    for (; steps < 0; ++steps) {
        const auto *notBelow = std::lower_bound(Steps.begin(), Steps.end(), percent);
        percent = notBelow == Steps.begin() ? Smallest : *(notBelow - 1);
    }
    return percent;
}

void FlexGridZoom::setPercent(int percent)
{
    m_percent = std::clamp(percent, Smallest, Largest);
}

int FlexGridZoom::toPixelsX(int twips) const
{
    const int pixels = Twips::toPixelsX(twips);
    return m_percent == Normal ? pixels : enlarged(pixels, twips / Twips::perPixelX() * factor());
}

int FlexGridZoom::toPixelsY(int twips) const
{
    const int pixels = Twips::toPixelsY(twips);
    return m_percent == Normal ? pixels : enlarged(pixels, twips / Twips::perPixelY() * factor());
}

int FlexGridZoom::fromPixelsX(int pixels) const
{
    return int(std::lround(pixels * Twips::perPixelX() / factor()));
}

int FlexGridZoom::fromPixelsY(int pixels) const
{
    return int(std::lround(pixels * Twips::perPixelY() / factor()));
}

int FlexGridZoom::scaled(int pixels) const
{
    return int(std::ceil(pixels * factor()));
}

QFont FlexGridZoom::scaled(const QFont &font) const
{
    QFont shown = font;
    if (m_percent == Normal)
        return shown;
    if (font.pointSizeF() > 0)
        shown.setPointSizeF(font.pointSizeF() * factor());
    else
        shown.setPixelSize(scaled(font.pixelSize()));
    return shown;
}
