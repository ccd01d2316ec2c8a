#include "print/PaintedSurface.h"

#include "platform/Twips.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr int PointsPerInch = 72;

} // namespace

PaintedSurface::PaintedSurface(QPainter &painter)
    : m_painter(painter)
{
}

QFont PaintedSurface::fontInTwips(const PrintFont &font)
{
    QFont result(font.Name);
    result.setPixelSize(font.Size * Twips::PerInch / PointsPerInch);
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

void PaintedSurface::setFont(const PrintFont &font)
{
    if (font == m_font)
        return;
    m_font = font;
    m_painter.setFont(fontInTwips(font));
    m_ascent = QFontMetricsF(m_painter.font(), m_painter.device()).ascent();
}

void PaintedSurface::setForeColor(QRgb color)
{
    m_painter.setPen(QColor::fromRgb(color));
}

void PaintedSurface::drawText(int x, int y, const QString &text, bool rightToLeft)
{
    m_painter.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    const qreal left = rightToLeft ? x - m_painter.fontMetrics().horizontalAdvance(text) : x;
    m_painter.drawText(QPointF(left, y + m_ascent), text);
}
