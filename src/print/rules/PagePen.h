#pragma once

#include "print/rules/PrintSurface.h"

/// Draws on a surface in twips of the printed page, whatever the zoom: every length is divided by ZoomDivisor.
class PagePen
{
public:
    /// Without a surface nothing is drawn. It must outlive the pen.
    PagePen(PrintSurface *surface, double ZoomDivisor);

    bool draws() const { return m_surface; }
    void setFont(PrintFont font);
    void setColor(QRgb color);
    /// A text that reads from right to left begins at x with its right end.
    void draw(int x, int y, const QString &text, bool rightToLeft = false);
    /// A text that stands in the middle between two places.
    void drawCentred(int left, int right, int y, const QString &text, const TextMeasure &measure);
    void drawLine(int x1, int y1, int x2, int y2);

    /// A length as it is drawn.
    static int divided(int twips, double ZoomDivisor);

private:
    int divided(int twips) const { return divided(twips, m_zoomDivisor); }

    PrintSurface *m_surface;
    double m_zoomDivisor;
};
