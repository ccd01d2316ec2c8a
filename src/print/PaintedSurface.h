#pragma once

#include "print/rules/PrintSurface.h"

#include <QFont>

class QPainter;

/// Draws with a painter whose unit is one twip: on the printer, or on a page on the screen.
class PaintedSurface : public PrintSurface
{
public:
    /// The painter stays the caller's and must outlive the surface.
    explicit PaintedSurface(QPainter &painter);

    void setFont(const PrintFont &font) override;
    void setForeColor(QRgb color) override;
    void drawText(int x, int y, const QString &text, bool rightToLeft) override;
    void drawLine(int x1, int y1, int x2, int y2) override;

    /// The font for a painter or a measure whose unit is one twip.
    static QFont fontInTwips(const PrintFont &font);
    /// The text as it is measured and drawn: letters that stand apart from their accents are joined with them, since a
    /// font may have the whole letter only.
    static QString shownText(const QString &text);

private:
    void drawWithPictures(QPointF baseline, const QString &text, bool rightToLeft);

    QPainter &m_painter;
    PrintFont m_font;
    qreal m_ascent = 0;
};
