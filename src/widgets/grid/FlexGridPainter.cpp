#include "widgets/grid/FlexGridPainter.h"

#include "widgets/grid/FlexGridCellText.h"
#include "widgets/grid/FlexGridColours.h"
#include "widgets/grid/FlexGridMerges.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace {

/// What some rows or columns that stand together take at the normal size, in pixels.
int normalSize(const std::vector<FlexGridBand> &bands, size_t first, size_t count)
{
    int size = 0;
    for (size_t i = first; i < first + count; ++i)
        size += bands[i].normalSize;
    return size;
}

} // namespace

FlexGridPainter::FlexGridPainter(const FlexGridState &state, const QPalette &palette, bool focused)
    : m_state(state)
    , m_palette(palette)
    , m_focused(focused)
{
}

void FlexGridPainter::paintGround(QPainter &painter, const QRect &rect) const
{
    painter.fillRect(rect, FlexGridColours::ground(m_state.look.BackColorBkg, m_palette));
}

void FlexGridPainter::paint(QPainter &painter, const std::vector<FlexGridBand> &rows,
                            const std::vector<FlexGridBand> &cols) const
{
    const FlexGridMerges merges(m_state);
    for (size_t i = 0; i < rows.size(); ++i) {
        for (size_t j = 0; j < cols.size(); ++j) {
            const FlexGridMerges::Span span = merges.spanAt(rows, cols, i, j);
            if (!span.begins)
                continue;
            QRect rect(cols[j].start, rows[i].start, cols[j].size, rows[i].size);
            const FlexGridBand &lastRow = rows[i + span.rows - 1];
            const FlexGridBand &lastCol = cols[j + span.cols - 1];
            rect |= QRect(lastCol.start, lastRow.start, lastCol.size, lastRow.size);
            const QSize normal(normalSize(cols, j, span.cols), normalSize(rows, i, span.rows));
            paintCell(painter, rows[i].index, cols[j].index, rect, normal);
        }
    }
}

void FlexGridPainter::paintCell(QPainter &painter, int row, int col, const QRect &rect, const QSize &normal) const
{
    const FlexGridCellFormat *format = m_state.cells.formats.find(row, col);
    const Colours colours = coloursOf(row, col, format);
    const bool fixed = m_state.isFixed(row, col);
    const int line = (fixed ? m_state.look.GridLinesFixed : m_state.look.GridLines) ? m_state.look.GridLineWidth : 0;
    const auto withoutLines = [this, line](const QRect &whole) {
        return m_state.rightToLeft ? whole.adjusted(line, 0, 0, -line) : whole.adjusted(0, 0, -line, -line);
    };

    painter.fillRect(rect, colours.ground);
    paintLines(painter, rect, fixed);
    painter.save();
    painter.setClipRect(withoutLines(rect), Qt::IntersectClip);
    enlarge(painter, rect, normal);
    const QRect inside = withoutLines(QRect(QPoint(), normal));
    if (format && !format->picture.isNull())
        paintPicture(painter, inside, *format);
    paintText(painter, row, col, inside, format, colours);
    painter.restore();
    if (m_state.selection.isCurrent(row, col))
        paintFocus(painter, withoutLines(rect));
}

/// What is drawn next into a cell of the normal size at the origin appears enlarged in the middle of rect. So lines
/// break and end at every size where they do at the normal one.
void FlexGridPainter::enlarge(QPainter &painter, const QRect &rect, const QSize &normal) const
{
    painter.translate(rect.x() + rect.width() / 2.0, rect.y() + rect.height() / 2.0);
    painter.scale(m_state.zoom.factor(), m_state.zoom.factor());
    painter.translate(-normal.width() / 2.0, -normal.height() / 2.0);
}

bool FlexGridPainter::isHighlighted(int row, int col) const
{
    const int mode = m_state.look.HighLight;
    if (mode == FlexGridLook::HighLightNever || (mode == FlexGridLook::HighLightWithFocus && !m_focused))
        return false;
    if (m_state.isFixed(row, col) || !m_state.selection.contains(row, col))
        return false;
    return !m_state.selection.isCurrent(row, col) || m_state.look.FocusRect == FlexGridLook::NoFocusRect;
}

FlexGridPainter::Colours FlexGridPainter::coloursOf(int row, int col, const FlexGridCellFormat *format) const
{
    const FlexGridLook &look = m_state.look;
    const bool fixed = m_state.isFixed(row, col);
    const bool selected = isHighlighted(row, col);
    int ground = fixed ? look.BackColorFixed : look.BackColor;
    int text = fixed ? look.ForeColorFixed : look.ForeColor;
    if (format && format->backColor)
        ground = format->backColor;
    if (format && format->foreColor)
        text = format->foreColor;
    if (selected) {
        ground = look.BackColorSel;
        text = look.ForeColorSel;
    }
    const QColor groundColour = FlexGridColours::ground(ground, m_palette);
    return {groundColour, FlexGridColours::text(text, m_palette, groundColour)};
}

void FlexGridPainter::paintLines(QPainter &painter, const QRect &rect, bool fixed) const
{
    const FlexGridLook &look = m_state.look;
    const int kind = fixed ? look.GridLinesFixed : look.GridLines;
    if (kind == FlexGridLook::NoLines)
        return;
    const Qt::Edge leading = m_state.rightToLeft ? Qt::RightEdge : Qt::LeftEdge;
    const Qt::Edge trailing = m_state.rightToLeft ? Qt::LeftEdge : Qt::RightEdge;
    QColor after = FlexGridColours::ground(fixed ? look.GridColorFixed : look.GridColor, m_palette);
    if (kind != FlexGridLook::FlatLines) {
        const QColor before = kind == FlexGridLook::InsetLines ? m_palette.dark().color() : m_palette.light().color();
        after = kind == FlexGridLook::InsetLines ? m_palette.light().color() : m_palette.dark().color();
        paintEdge(painter, rect, Qt::TopEdge, before);
        paintEdge(painter, rect, leading, before);
    }
    paintEdge(painter, rect, Qt::BottomEdge, after);
    paintEdge(painter, rect, trailing, after);
}

void FlexGridPainter::paintEdge(QPainter &painter, const QRect &rect, Qt::Edge edge, const QColor &colour) const
{
    // laid on the device's own pixels, so that all lines are equally thick at a scale such as 1.25
    const double scale = painter.device()->devicePixelRatioF();
    const double width = std::max(1.0, std::round(m_state.look.GridLineWidth * scale)) / scale;
    const auto onPixel = [scale](int value) { return std::round(value * scale) / scale; };
    QRectF line(QPointF(onPixel(rect.left()), onPixel(rect.top())),
                QPointF(onPixel(rect.left() + rect.width()), onPixel(rect.top() + rect.height())));
    switch (edge) {
    case Qt::TopEdge:
        line.setHeight(width);
        break;
    case Qt::LeftEdge:
        line.setWidth(width);
        break;
    case Qt::RightEdge:
        line.setLeft(line.right() - width);
        break;
    case Qt::BottomEdge:
        line.setTop(line.bottom() - width);
        break;
    }
    painter.fillRect(line, colour);
}

void FlexGridPainter::paintPicture(QPainter &painter, const QRect &rect, const FlexGridCellFormat &format) const
{
    const QSizeF size = format.picture.deviceIndependentSize();
    const Qt::Alignment alignment = FlexGridCellText::alignmentOf(format.pictureAlignment, QString());
    QPointF at = rect.topLeft();
    if (alignment & Qt::AlignHCenter)
        at.rx() += (rect.width() - size.width()) / 2;
    if (alignment & Qt::AlignRight)
        at.rx() += rect.width() - size.width();
    if (alignment & Qt::AlignVCenter)
        at.ry() += (rect.height() - size.height()) / 2;
    if (alignment & Qt::AlignBottom)
        at.ry() += rect.height() - size.height();
    painter.drawPixmap(at, format.picture);
}

void FlexGridPainter::paintText(QPainter &painter, int row, int col, const QRect &rect,
                                const FlexGridCellFormat *format, const Colours &colours) const
{
    const bool number = m_state.cells.isNumber(row, col);
    const int margin = number ? FlexGridCellText::NumberMargin : FlexGridCellText::Margin;
    const QRect space = rect.adjusted(margin, 0, -margin, 0);
    FlexGridCellText::Setting setting{m_state.cells.text(row, col), m_state.look.Font, {}, m_state.look.WordWrap};
    if (setting.text.isEmpty() || space.width() <= 0)
        return;
    const FlexGridCells::Column &column = m_state.cells.column(col);
    const bool fixed = m_state.isFixed(row, col);
    int alignment = fixed && column.fixedAlignment >= 0 ? column.fixedAlignment : column.alignment;
    int style = fixed ? m_state.look.TextStyleFixed : m_state.look.TextStyle;
    if (format && format->alignment >= 0)
        alignment = format->alignment;
    if (format && format->textStyle >= 0)
        style = format->textStyle;
    setting.alignment = FlexGridCellText::alignmentOf(alignment, setting.text);
    if (number && m_state.rightToLeft) // beside the words, too
        setting.alignment = QStyle::visualAlignment(Qt::RightToLeft, setting.alignment);

    if (style > 0) {
        // raised texts throw light to the upper left, inset ones to the lower right; the light styles less of it
        QColor light = m_palette.light().color();
        light.setAlphaF(style > 2 ? 0.5F : 1.0F);
        const int step = style % 2 ? -1 : 1;
        painter.setPen(light);
        FlexGridCellText::draw(painter, space.translated(step, step), setting);
    }
    painter.setPen(colours.text);
    FlexGridCellText::draw(painter, space, setting);
}

void FlexGridPainter::paintFocus(QPainter &painter, const QRect &rect) const
{
    const int width = m_state.look.FocusRect;
    if (width == FlexGridLook::NoFocusRect || !m_state.hasData())
        return;
    QColor colour = m_palette.highlight().color();
    if (!m_focused) {
        colour = m_palette.text().color();
        colour.setAlphaF(0.5F);
    }
    painter.setPen(colour);
    for (int i = 0; i < width; ++i) {
        painter.drawRect(rect.adjusted(i, i, -1 - i, -1 - i));
    }
}
