#pragma once

#include "widgets/grid/FlexGridBand.h"
#include "widgets/grid/FlexGridState.h"

#include <QPalette>

#include <vector>

class QPainter;

/// Draws the cells of a flex grid: grounds, lines, pictures, texts and the mark of the current cell.
class FlexGridPainter
{
public:
    FlexGridPainter(const FlexGridState &state, const QPalette &palette, bool focused);

    void paintGround(QPainter &painter, const QRect &rect) const;
    /// Draws the cells where the rows and columns cross.
    void paint(QPainter &painter, const std::vector<FlexGridBand> &rows, const std::vector<FlexGridBand> &cols) const;

private:
    struct Colours
    {
        QColor ground;
        QColor text;
    };

    void paintCell(QPainter &painter, int row, int col, const QRect &rect, const QSize &normal) const;
    void enlarge(QPainter &painter, const QRect &rect, const QSize &normal) const;
    Colours coloursOf(int row, int col, const FlexGridCellFormat *format) const;
    void paintLines(QPainter &painter, const QRect &rect, bool fixed) const;
    void paintEdge(QPainter &painter, const QRect &rect, Qt::Edge edge, const QColor &colour) const;
    void paintPicture(QPainter &painter, const QRect &rect, const FlexGridCellFormat &format) const;
    void paintText(QPainter &painter, int row, int col, const QRect &rect, const FlexGridCellFormat *format,
                   const Colours &colours) const;
    void paintFocus(QPainter &painter, const QRect &rect) const;
    bool isHighlighted(int row, int col) const;

    const FlexGridState &m_state;
    QPalette m_palette;
    bool m_focused;
};
