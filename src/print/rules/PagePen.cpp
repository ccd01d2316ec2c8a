#include "print/rules/PagePen.h"

#include <algorithm>
#include <cmath>

PagePen::PagePen(PrintSurface *surface, double ZoomDivisor)
    : m_surface(surface)
    , m_zoomDivisor(ZoomDivisor)
{
}

int PagePen::divided(int twips, double ZoomDivisor)
{
    return int(std::lround(twips / ZoomDivisor));
}

void PagePen::setFont(PrintFont font)
{
    font.Size = std::max(1, int(font.Size / m_zoomDivisor));
    if (m_surface)
        m_surface->setFont(font);
}

void PagePen::setColor(QRgb color)
{
    if (m_surface)
        m_surface->setForeColor(color);
}

void PagePen::draw(int x, int y, const QString &text, bool rightToLeft)
{
    if (m_surface && !text.isEmpty())
        m_surface->drawText(divided(x), divided(y), text, rightToLeft);
}

void PagePen::drawCentred(int left, int right, int y, const QString &text, const TextMeasure &measure)
{
    const int begin = (left + right - measure.TextWidth(text)) / 2;
    const bool rightToLeft = text.isRightToLeft();
    draw(rightToLeft ? left + right - begin : begin, y, text, rightToLeft);
}

void PagePen::drawLine(int x1, int y1, int x2, int y2)
{
    if (m_surface)
        m_surface->drawLine(divided(x1), divided(y1), divided(x2), divided(y2));
}
