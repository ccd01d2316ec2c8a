#include "widgets/grid/FlexGridView.h"

#include "platform/Twips.h"
#include "widgets/grid/FlexGridAccessible.h"
#include "widgets/grid/FlexGridCellText.h"
#include "widgets/grid/FlexGridPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

/// Coordinates beyond this are as good as infinite and still safe to add up.
constexpr qint64 FarAway = 1 << 24;
constexpr int SideStep = 24; // pixels of one horizontal scroll step

int bounded(qint64 value)
{
    return int(std::clamp(value, -FarAway, FarAway));
}

} // namespace

FlexGridView::FlexGridView(const FlexGridState &state, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_state(state)
{
    FlexGridAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    horizontalScrollBar()->setSingleStep(SideStep);
}

void FlexGridView::layOutAgain()
{
    m_layoutPending = true;
    if (m_heldBack)
        return;
    layOutIfNeeded();
    viewport()->update();
    Q_EMIT laidOut();
}

void FlexGridView::layOutIfNeeded()
{
    if (!m_layoutPending)
        return;
    m_layoutPending = false;
    const auto ranges = [this] {
        return std::tuple(verticalScrollBar()->minimum(), verticalScrollBar()->maximum(),
                          horizontalScrollBar()->maximum());
    };
    const auto before = ranges();
    if (updateScrollBars())
        Q_EMIT scrolled();
    // the scroll area shows, hides and places its bars when one of them says that its range changed
    if (ranges() != before)
        Q_EMIT horizontalScrollBar()->rangeChanged(0, horizontalScrollBar()->maximum());
}

bool FlexGridView::event(QEvent *event)
{
    if (event->type() == QEvent::Resize && updateScrollBars())
        Q_EMIT scrolled();
    return QAbstractScrollArea::event(event);
}

void FlexGridView::setHeldBack(bool heldBack)
{
    m_heldBack = heldBack;
    setUpdatesEnabled(!heldBack);
    if (!heldBack)
        layOutAgain();
}

QSize FlexGridView::roomBesideBars() const
{
    const QSize whole = maximumViewportSize();
    QSize room = whole;
    // each bar takes room that may make the other one necessary
    for (int pass = 0; pass < 2; ++pass) {
        if (scrollableWidth() > std::max(0, room.width() - fixedWidth()) && m_state.look.ScrollBars & 1)
            room.setHeight(whole.height() - horizontalScrollBar()->sizeHint().height());
        if (largestTopRow(room.height()) > m_state.fixedRows && m_state.look.ScrollBars & 2)
            room.setWidth(whole.width() - verticalScrollBar()->sizeHint().width());
    }
    return room;
}

bool FlexGridView::updateScrollBars()
{
    // both ranges are set before the scroll area hears of either: it would lay out with one that is out of date
    const QSignalBlocker quietVertical(verticalScrollBar());
    const QSignalBlocker quietHorizontal(horizontalScrollBar());
    measureNumbers();
    const int leftBefore = horizontalScrollBar()->value();
    const int topBefore = m_topRow;
    const QSize room = roomBesideBars();
    const int lastPage = largestTopRow(room.height());
    verticalScrollBar()->setRange(m_state.fixedRows, lastPage);
    verticalScrollBar()->setPageStep(std::max(1, m_state.cells.rows() - lastPage));
    m_topRow = verticalScrollBar()->value();

    const int width = std::max(0, room.width() - fixedWidth());
    horizontalScrollBar()->setRange(0, bounded(std::max<qint64>(0, scrollableWidth() - width)));
    horizontalScrollBar()->setPageStep(std::max(SideStep, width - SideStep));
    return m_topRow != topBefore || horizontalScrollBar()->value() != leftBefore;
}

int FlexGridView::largestTopRow(int height) const
{
    int row = m_state.cells.rows() - 1;
    qint64 left = height - fixedHeight() - rowPixels(row);
    while (row > m_state.fixedRows && left >= rowPixels(row - 1))
        left -= rowPixels(--row);
    return std::max(row, m_state.fixedRows);
}

void FlexGridView::setTopRow(int row)
{
    layOutIfNeeded();
    verticalScrollBar()->setValue(row);
}

int FlexGridView::leftCol() const
{
    int col = m_state.fixedCols;
    while (col + 1 < m_state.cells.cols() && colLeft(col) + colPixels(col) <= fixedWidth())
        ++col;
    return col;
}

void FlexGridView::setLeftCol(int col)
{
    layOutIfNeeded();
    qint64 offset = 0;
    for (int i = m_state.fixedCols; i < std::min(col, m_state.cells.cols()); ++i)
        offset += colPixels(i);
    horizontalScrollBar()->setValue(bounded(offset));
}

void FlexGridView::scrollContentsBy(int, int)
{
    m_topRow = verticalScrollBar()->value();
    viewport()->update();
    Q_EMIT laidOut();
    Q_EMIT scrolled();
}

void FlexGridView::scrollToCell(int row, int col)
{
    layOutIfNeeded();
    if (row >= m_state.fixedRows && !rowIsVisible(row)) {
        int top = row;
        qint64 left = cellArea().height() - rowPixels(row);
        while (row > m_topRow && top > m_state.fixedRows && left >= rowPixels(top - 1))
            left -= rowPixels(--top);
        setTopRow(top);
    }
    if (col >= m_state.fixedCols && !colIsVisible(col)) {
        const qint64 before = colLeft(col) - fixedWidth();
        const qint64 beyond = colLeft(col) + colPixels(col) - viewport()->width();
        const qint64 step = before < 0 ? before : std::min(before, beyond);
        horizontalScrollBar()->setValue(bounded(horizontalScrollBar()->value() + step));
    }
}

bool FlexGridView::rowIsVisible(int row) const
{
    if (row < 0 || row >= m_state.cells.rows())
        return false;
    if (row < m_state.fixedRows || row == m_topRow)
        return true;
    if (row < m_topRow)
        return false;
    qint64 left = cellArea().height();
    for (int i = m_topRow; i <= row && left >= 0; ++i)
        left -= rowPixels(i);
    return left >= 0;
}

bool FlexGridView::colIsVisible(int col) const
{
    if (col < 0 || col >= m_state.cells.cols())
        return false;
    if (col < m_state.fixedCols)
        return true;
    const qint64 left = colLeft(col);
    return left == fixedWidth() || (left > fixedWidth() && left + colPixels(col) <= viewport()->width());
}

int FlexGridView::rowPixels(int row) const
{
    return m_state.zoom.toPixelsY(m_state.cells.rowHeight(row));
}

int FlexGridView::normalRowPixels(int row) const
{
    return Twips::toPixelsY(m_state.cells.rowHeight(row));
}

int FlexGridView::colPixels(int col) const
{
    const int pixels = m_state.zoom.toPixelsX(m_state.cells.column(col).width);
    return showsNumbers(col) ? std::max(pixels, m_state.zoom.scaled(m_numberPixels)) : pixels;
}

int FlexGridView::normalColPixels(int col) const
{
    const int pixels = Twips::toPixelsX(m_state.cells.column(col).width);
    return showsNumbers(col) ? std::max(pixels, m_numberPixels) : pixels;
}

bool FlexGridView::showsNumbers(int col) const
{
    return col == 0 && m_state.cells.numbersRows() && Twips::toPixelsX(m_state.cells.column(0).width) > 0;
}

void FlexGridView::measureNumbers()
{
    const auto digits = int(QString::number(m_state.cells.rows() - 1).size());
    if (digits == m_numberDigits && m_state.look.Font == m_numberFont)
        return;
    m_numberDigits = digits;
    m_numberFont = m_state.look.Font;
    const double width = QFontMetricsF(m_numberFont).horizontalAdvance(QString(digits, u'0'));
    m_numberPixels = int(std::ceil(width)) + 2 * FlexGridCellText::NumberMargin + m_state.look.GridLineWidth;
}

int FlexGridView::fixedHeight() const
{
    return bounded(rowTop(m_state.fixedRows - 1) + (m_state.fixedRows ? rowPixels(m_state.fixedRows - 1) : 0));
}

int FlexGridView::fixedWidth() const
{
    return bounded(colLeft(m_state.fixedCols - 1) + (m_state.fixedCols ? colPixels(m_state.fixedCols - 1) : 0));
}

qint64 FlexGridView::rowTop(int row) const
{
    qint64 top = 0;
    for (int i = 0; i < std::min(row, m_state.fixedRows); ++i)
        top += rowPixels(i);
    for (int i = m_topRow; i < row; ++i)
        top += rowPixels(i);
    for (int i = std::max(row, m_state.fixedRows); i < m_topRow && row >= m_state.fixedRows; ++i)
        top -= rowPixels(i);
    return top;
}

qint64 FlexGridView::colLeft(int col) const
{
    qint64 left = 0;
    for (int i = 0; i < col; ++i)
        left += colPixels(i);
    return col < m_state.fixedCols ? left : left - horizontalScrollBar()->value();
}

qint64 FlexGridView::scrollableWidth() const
{
    qint64 width = 0;
    for (int i = m_state.fixedCols; i < m_state.cells.cols(); ++i)
        width += colPixels(i);
    return width;
}

int FlexGridView::mirrored(int x, int width) const
{
    return m_state.rightToLeft ? viewport()->width() - x - width : x;
}

QRect FlexGridView::cellRect(int row, int col) const
{
    if (!m_state.cells.hasCell(row, col))
        return {};
    const int width = colPixels(col);
    return {mirrored(bounded(colLeft(col)), width), bounded(rowTop(row)), width, rowPixels(row)};
}

QRect FlexGridView::cellArea() const
{
    const int width = std::max(0, viewport()->width() - fixedWidth());
    const int height = std::max(0, viewport()->height() - fixedHeight());
    return {mirrored(fixedWidth(), width), fixedHeight(), width, height};
}

FlexGridView::Bands FlexGridView::fixedRowBands() const
{
    Bands bands;
    for (int row = 0, top = 0; row < m_state.fixedRows && top < viewport()->height(); top = bands.back().end(), ++row)
        bands.push_back({row, top, rowPixels(row), normalRowPixels(row)});
    return bands;
}

FlexGridView::Bands FlexGridView::shownRowBands() const
{
    Bands bands;
    int top = fixedHeight();
    for (int row = m_topRow; row < m_state.cells.rows() && top < viewport()->height(); ++row) {
        const int height = rowPixels(row);
        if (height > 0)
            bands.push_back({row, top, height, normalRowPixels(row)});
        top += height;
    }
    return bands;
}

FlexGridView::Bands FlexGridView::fixedColBands() const
{
    Bands bands;
    for (int col = 0, left = 0; col < m_state.fixedCols && left < viewport()->width(); ++col) {
        const int width = colPixels(col);
        bands.push_back({col, mirrored(left, width), width, normalColPixels(col)});
        left += width;
    }
    return bands;
}

FlexGridView::Bands FlexGridView::shownColBands() const
{
    Bands bands;
    qint64 left = colLeft(m_state.fixedCols);
    for (int col = m_state.fixedCols; col < m_state.cells.cols() && left < viewport()->width(); ++col) {
        const int width = colPixels(col);
        if (width > 0 && left + width > fixedWidth())
            bands.push_back({col, mirrored(bounded(left), width), width, normalColPixels(col)});
        left += width;
    }
    return bands;
}

int FlexGridView::rowAt(int y) const
{
    const bool fixed = y < fixedHeight();
    for (const FlexGridBand &band : fixed ? fixedRowBands() : shownRowBands()) {
        if (y >= band.start && y < band.end())
            return band.index;
    }
    return -1;
}

int FlexGridView::colAt(int x) const
{
    for (const Bands &bands : {fixedColBands(), shownColBands()}) {
        for (const FlexGridBand &band : bands) {
            if (x >= band.start && x < band.end())
                return band.index;
        }
    }
    return -1;
}

QSize FlexGridView::wholeSize() const
{
    qint64 height = 2LL * frameWidth();
    for (int row = 0; row < m_state.cells.rows(); ++row)
        height += rowPixels(row);
    qint64 width = 2LL * frameWidth();
    for (int col = 0; col < m_state.cells.cols(); ++col)
        width += colPixels(col);
    return {bounded(std::min<qint64>(width, QWIDGETSIZE_MAX)), bounded(std::min<qint64>(height, QWIDGETSIZE_MAX))};
}

void FlexGridView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    FlexGridPainter cells(m_state, palette(), hasFocus());
    cells.paintGround(painter, viewport()->rect());
    const Bands fixedRows = fixedRowBands();
    const Bands fixedCols = fixedColBands();
    const Bands rows = shownRowBands();
    const Bands cols = shownColBands();
    const QRect area = cellArea();

    painter.setClipRect(area);
    cells.paint(painter, rows, cols);
    painter.setClipRect(QRect(area.left(), 0, area.width(), area.top()));
    cells.paint(painter, fixedRows, cols);
    painter.setClipRect(QRect(mirrored(0, fixedWidth()), area.top(), fixedWidth(), area.height()));
    cells.paint(painter, rows, fixedCols);
    painter.setClipping(false);
    cells.paint(painter, fixedRows, fixedCols);
}

void FlexGridView::resizeEvent(QResizeEvent *)
{
    viewport()->update();
    Q_EMIT laidOut();
}
