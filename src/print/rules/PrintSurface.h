#pragma once

#include <QRgb>
#include <QString>

#include <memory>

/// A font as the layout knows it.
struct PrintFont
{
    QString Name;
    int Size = 10; ///< points
    bool Bold = false;
    bool Italic = false;
    bool operator==(const PrintFont &) const = default;
};

/// Measures texts in one font, in twips of the printed page.
class TextMeasure
{
public:
    virtual ~TextMeasure() = default;
    virtual int TextWidth(const QString &text) const = 0;
    virtual int TextHeight() const = 0;
};

/// The measures of the printer's page and of texts on it, in twips. Every layout uses them, also one for the screen.
class PrinterMetrics
{
public:
    virtual ~PrinterMetrics() = default;
    virtual int Width() const = 0;
    virtual int Height() const = 0;
    virtual int ScaleHeight() const = 0; ///< the height that can be drawn on
    virtual std::unique_ptr<TextMeasure> measure(const PrintFont &font) const = 0;
    /// Whether sheets that are printed on both sides are turned over their short edge.
    virtual bool turnsOverShortEdge() const { return false; }
};

/// What a page is drawn on. Coordinates are twips from its top left corner.
class PrintSurface
{
public:
    virtual ~PrintSurface() = default;
    virtual void setFont(const PrintFont &font) = 0;
    virtual void setForeColor(QRgb color) = 0;
    /// Draws one line of text that begins at x, its top at y. A line that reads from right to left begins at its right
    /// end; words of the other direction find their place in either.
    virtual void drawText(int x, int y, const QString &text, bool rightToLeft) = 0;
    /// Draws a thin line.
    virtual void drawLine(int x1, int y1, int x2, int y2) = 0;
};
