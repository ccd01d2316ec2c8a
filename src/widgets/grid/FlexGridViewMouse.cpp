#include "widgets/grid/FlexGridView.h"

#include "platform/Twips.h"
#include "widgets/grid/FlexGridCellText.h"
#include "widgets/grid/FlexGridKeys.h"

#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int BorderReach = 3;     // pixels on either side of a border in which it can be dragged
constexpr int AutoScrollStep = 40; // milliseconds
constexpr int SmallestDragged = 1; // pixels
constexpr int CustomPointer = 99;
constexpr qsizetype LongestToolTip = 8192;

/// Of tool tips only paragraphs have their lines broken; what a cell holds is no markup.
QString inParagraph(const QString &text, const FlexGridZoom &zoom)
{
    const QString direction = text.isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
    const double points = QFontInfo(QToolTip::font()).pointSizeF() * zoom.factor();
    const QString size =
        zoom.percent() == FlexGridZoom::Normal ? QString() : QStringLiteral(" style='font-size:%1pt'").arg(points);
    return QStringLiteral("<p dir='%1'%2>%3</p>").arg(direction, size, text.left(LongestToolTip).toHtmlEscaped());
}

} // namespace

int FlexGridView::borderColAt(const QPoint &position) const
{
    int found = -1;
    if (!(m_state.look.AllowUserResizing & FlexGridLook::ResizeCols) || position.y() >= fixedHeight())
        return found;
    const int x = mirrored(position.x(), 1);
    for (int col = 0; col < m_state.cells.cols(); ++col) {
        const qint64 border = colLeft(col) + colPixels(col);
        const bool shown = col < m_state.fixedCols || border >= fixedWidth();
        // of borders at the same place the last one is meant when the mouse stands behind it
        if (shown && std::abs(x - border) <= BorderReach && (found < 0 || x >= border))
            found = col;
    }
    return found;
}

int FlexGridView::borderRowAt(const QPoint &position) const
{
    int found = -1;
    const int col = colAt(position.x());
    if (!(m_state.look.AllowUserResizing & FlexGridLook::ResizeRows) || col < 0 || col >= m_state.fixedCols)
        return found;
    for (const Bands &bands : {fixedRowBands(), shownRowBands()}) {
        for (const FlexGridBand &band : bands) {
            if (std::abs(position.y() - band.end()) <= BorderReach && (found < 0 || position.y() >= band.end()))
                found = band.index;
        }
    }
    return found;
}

bool FlexGridView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QAbstractScrollArea::viewportEvent(event);
    const auto *asked = static_cast<QHelpEvent *>(event);
    const QString text = cutTextAt(asked->pos());
    const QRect cell = cellRect(rowAt(asked->pos().y()), colAt(asked->pos().x()));
    QToolTip::showText(asked->globalPos(), text.isEmpty() ? text : inParagraph(text, m_state.zoom), viewport(), cell);
    return true;
}

QString FlexGridView::cutTextAt(const QPoint &position) const
{
    const int row = rowAt(position.y());
    const int col = colAt(position.x());
    if (!m_state.cells.hasCell(row, col) || m_state.cells.isNumber(row, col))
        return {};
    const FlexGridCellText::Setting setting{m_state.cells.word(row, col), m_state.look.Font, {}, m_state.look.WordWrap};
    const int line = m_state.look.GridLineWidth;
    const QSize inside =
        QSize(normalColPixels(col), normalRowPixels(row)) - QSize(line + 2 * FlexGridCellText::Margin, line);
    return !setting.text.isEmpty() && FlexGridCellText::isCut(inside, setting) ? setting.text : QString();
}

/// With Ctrl it zooms, which the grid does. The toolkit's horizontal bar knows no mirrored wheel.
void FlexGridView::wheelEvent(QWheelEvent *event)
{
    const bool sideways = std::abs(event->angleDelta().x()) > std::abs(event->angleDelta().y());
    if (event->modifiers() & Qt::ControlModifier) {
        event->ignore();
    } else if (sideways && m_state.rightToLeft) {
        const QPoint pixels(-event->pixelDelta().x(), event->pixelDelta().y());
        const QPoint angle(-event->angleDelta().x(), event->angleDelta().y());
        QWheelEvent turned(event->position(), event->globalPosition(), pixels, angle, event->buttons(),
                           event->modifiers(), event->phase(), event->inverted(), event->source());
        QAbstractScrollArea::wheelEvent(&turned);
    } else {
        QAbstractScrollArea::wheelEvent(event);
    }
}

void FlexGridView::mousePressEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    m_mouseRow = rowAt(position.y());
    m_mouseCol = colAt(position.x());
    Q_EMIT mousePressed(FlexGridKeys::buttonBits(event->button()), FlexGridKeys::shiftBits(event->modifiers()),
                        event->position());
    if (event->button() == Qt::LeftButton) {
        startDrag(position, event->modifiers() & Qt::ShiftModifier);
    } else if (event->button() == Qt::RightButton) {
        const bool onData = m_mouseRow >= m_state.fixedRows && m_mouseCol >= m_state.fixedCols;
        if (onData && !m_state.selection.contains(m_mouseRow, m_mouseCol))
            Q_EMIT selectionWanted(widened({m_mouseRow, m_mouseCol, m_mouseRow, m_mouseCol}));
    }
}

void FlexGridView::startDrag(const QPoint &position, bool extend)
{
    m_dragPosition = position;
    m_dragged = borderColAt(position);
    if (m_dragged >= 0) {
        m_drag = Drag::ColBorder;
        return;
    }
    m_dragged = borderRowAt(position);
    if (m_dragged >= 0) {
        m_drag = Drag::RowBorder;
        return;
    }
    const int row = rowAt(position.y());
    const int col = colAt(position.x());
    if (row < 0 || col < 0 || !m_state.hasData())
        return;
    if (m_state.isFixed(row, col)) {
        startHeaderDrag(row, col, extend);
        return;
    }
    m_drag = Drag::Cells;
    move(row, col, extend);
}

void FlexGridView::startHeaderDrag(int row, int col, bool extend)
{
    if (!m_state.look.AllowBigSelection)
        return;
    GridSelection wanted{m_state.fixedRows, m_state.fixedCols, m_state.cells.rows() - 1, m_state.cells.cols() - 1};
    if (row >= m_state.fixedRows) {
        m_drag = Drag::Rows;
        wanted.Row = extend ? std::max(m_state.selection.Row, m_state.fixedRows) : row;
        wanted.RowSel = row;
    } else if (col >= m_state.fixedCols) {
        m_drag = Drag::Cols;
        wanted.Col = extend ? std::max(m_state.selection.Col, m_state.fixedCols) : col;
        wanted.ColSel = col;
    }
    Q_EMIT selectionWanted(widened(wanted));
}

void FlexGridView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    m_mouseRow = rowAt(position.y());
    m_mouseCol = colAt(position.x());
    Q_EMIT mouseMoved(FlexGridKeys::buttonBits(event->buttons()), FlexGridKeys::shiftBits(event->modifiers()),
                      event->position());
    if (m_drag == Drag::None) {
        applyPointer();
        return;
    }
    dragTo(position);
    const bool selecting = m_drag != Drag::RowBorder && m_drag != Drag::ColBorder;
    if (selecting && !cellArea().contains(position))
        m_autoScroll.start(AutoScrollStep, this);
    else
        m_autoScroll.stop();
}

void FlexGridView::dragTo(const QPoint &position)
{
    m_dragPosition = position;
    if (m_drag == Drag::RowBorder || m_drag == Drag::ColBorder)
        dragBorderTo(position);
    else
        dragSelectionTo(position);
}

void FlexGridView::dragBorderTo(const QPoint &position)
{
    if (m_drag == Drag::RowBorder && m_dragged < m_state.cells.rows()) {
        const auto height = std::max<qint64>(SmallestDragged, position.y() - rowTop(m_dragged));
        Q_EMIT rowHeightWanted(m_dragged, m_state.zoom.fromPixelsY(int(height)));
    } else if (m_drag == Drag::ColBorder && m_dragged < m_state.cells.cols()) {
        const auto width = std::max<qint64>(SmallestDragged, mirrored(position.x(), 1) - colLeft(m_dragged));
        Q_EMIT colWidthWanted(m_dragged, m_state.zoom.fromPixelsX(int(width)));
    }
}

void FlexGridView::dragSelectionTo(const QPoint &position)
{
    const QRect area = cellArea();
    if (area.isEmpty() || !m_state.hasData())
        return;
    const QPoint inside(std::clamp(position.x(), area.left(), area.right()),
                        std::clamp(position.y(), area.top(), area.bottom()));
    const int row = rowAt(inside.y());
    const int col = colAt(inside.x());
    GridSelection wanted = m_state.selection;
    if (m_drag != Drag::Cols)
        wanted.RowSel = row < 0 ? m_state.cells.rows() - 1 : row;
    if (m_drag != Drag::Rows)
        wanted.ColSel = col < 0 ? m_state.cells.cols() - 1 : col;
    Q_EMIT selectionWanted(widened(wanted));
}

void FlexGridView::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_composerRest.timerId())
        passFocusToComposer();
    if (event->timerId() != m_autoScroll.timerId()) {
        QAbstractScrollArea::timerEvent(event);
        return;
    }
    const QRect area = cellArea();
    const auto step = [](QScrollBar *bar, bool back, bool on) {
        if (back || on)
            bar->triggerAction(back ? QScrollBar::SliderSingleStepSub : QScrollBar::SliderSingleStepAdd);
    };
    if (m_drag != Drag::Cols)
        step(verticalScrollBar(), m_dragPosition.y() < area.top(), m_dragPosition.y() > area.bottom());
    if (m_drag != Drag::Rows) {
        const bool left = m_dragPosition.x() < area.left();
        const bool right = m_dragPosition.x() > area.right();
        step(horizontalScrollBar(), m_state.rightToLeft ? right : left, m_state.rightToLeft ? left : right);
    }
    dragSelectionTo(m_dragPosition);
}

void FlexGridView::mouseReleaseEvent(QMouseEvent *event)
{
    const bool sized = m_drag == Drag::RowBorder || m_drag == Drag::ColBorder;
    if (event->button() == Qt::LeftButton) {
        m_drag = Drag::None;
        m_autoScroll.stop();
        applyPointer();
    }
    Q_EMIT mouseReleased(FlexGridKeys::buttonBits(event->button()), FlexGridKeys::shiftBits(event->modifiers()),
                         event->position());
    if (event->button() == Qt::LeftButton && !sized && viewport()->rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

void FlexGridView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint position = event->position().toPoint();
    const int borderCol = borderColAt(position);
    const int borderRow = borderRowAt(position);
    const int row = rowAt(position.y());
    const int col = colAt(position.x());
    if (borderCol >= 0)
        Q_EMIT colWidthWanted(borderCol, Twips::fromPixelsX(fittingColPixels(borderCol)));
    else if (borderRow >= 0)
        Q_EMIT rowHeightWanted(borderRow, Twips::fromPixelsY(fittingRowPixels(borderRow)));
    else if (row >= m_state.fixedRows && col >= m_state.fixedCols)
        Q_EMIT cellDoubleClicked();
}

void FlexGridView::contextMenuEvent(QContextMenuEvent *event)
{
    // the menu key asks like a right click on the current cell
    event->accept();
    if (event->reason() != QContextMenuEvent::Keyboard)
        return;
    const QRect shown = cellRect(m_state.selection.Row, m_state.selection.Col) & cellArea();
    const QPointF position = shown.isEmpty() ? cellArea().topLeft() : shown.center();
    Q_EMIT mousePressed(FlexGridKeys::buttonBits(Qt::RightButton), 0, position);
    Q_EMIT mouseReleased(FlexGridKeys::buttonBits(Qt::RightButton), 0, position);
}

void FlexGridView::applyPointer()
{
    if (m_drag == Drag::RowBorder || m_drag == Drag::ColBorder)
        return;
    const QPoint mouse = viewport()->mapFromGlobal(QCursor::pos());
    if (borderColAt(mouse) >= 0)
        viewport()->setCursor(Qt::SplitHCursor);
    else if (borderRowAt(mouse) >= 0)
        viewport()->setCursor(Qt::SplitVCursor);
    else
        viewport()->setCursor(ownPointer());
}

QCursor FlexGridView::ownPointer() const
{
    static constexpr Qt::CursorShape Shapes[] = {
        Qt::ArrowCursor,     Qt::ArrowCursor,   Qt::CrossCursor,     Qt::IBeamCursor,
        Qt::ArrowCursor,     Qt::SizeAllCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,
        Qt::SizeFDiagCursor, Qt::SizeHorCursor, Qt::UpArrowCursor,   Qt::WaitCursor,
        Qt::ForbiddenCursor, Qt::BusyCursor,    Qt::WhatsThisCursor, Qt::SizeAllCursor};
    const int pointer = m_state.look.MousePointer;
    if (pointer == CustomPointer && !m_state.look.MouseIcon.isNull())
        return QCursor(m_state.look.MouseIcon);
    return pointer > 0 && pointer < int(std::size(Shapes)) ? Shapes[pointer] : Qt::ArrowCursor;
}

int FlexGridView::fittingColPixels(int col) const
{
    const QFontMetricsF metrics(m_state.look.Font);
    const double widestLetter = std::max(metrics.horizontalAdvance(u'W'), metrics.height());
    double widest = 0;
    for (int row = 0; row < m_state.cells.rows(); ++row) {
        const QString text = m_state.cells.text(row, col);
        if (double(text.size()) * widestLetter > widest)
            widest = std::max(widest, metrics.horizontalAdvance(text));
    }
    return int(std::ceil(widest)) + 2 * FlexGridCellText::Margin + m_state.look.GridLineWidth + 1;
}

int FlexGridView::fittingRowPixels(int row) const
{
    double highest = 0;
    for (int col = 0; col < m_state.cells.cols(); ++col) {
        if (m_state.cells.isNumber(row, col))
            continue;
        const FlexGridCellText::Setting setting{
            m_state.cells.word(row, col), m_state.look.Font, {}, m_state.look.WordWrap};
        const int width = normalColPixels(col) - m_state.look.GridLineWidth - 2 * FlexGridCellText::Margin;
        highest = std::max(highest, FlexGridCellText::heightFor(width, setting));
    }
    return int(std::ceil(highest)) + m_state.look.GridLineWidth + 1;
}
