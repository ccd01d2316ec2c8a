#include "widgets/grid/FlexGridView.h"

#include "widgets/grid/FlexGridAccessible.h"
#include "widgets/grid/FlexGridKeys.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr int ComposerRest = 500; // milliseconds without a letter

bool isModifier(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

} // namespace

bool FlexGridView::focusNextPrevChild(bool)
{
    return false;
}

void FlexGridView::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
    Q_EMIT focusArrived();
    composeIn(nullptr); // and asks anew whether input methods are wanted
    // after the toolkit's own word that the whole table has the focus
    QMetaObject::invokeMethod(
        this, [this] { FlexGridAccessible::announceCurrentCell(*this); }, Qt::QueuedConnection);
}

void FlexGridView::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
    updateMicroFocus(Qt::ImEnabled);
}

void FlexGridView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    viewport()->update();
}

void FlexGridView::keyPressEvent(QKeyEvent *event)
{
    if (m_composer && !isModifier(event->key())) { // what the input method leaves is the box's
        QCoreApplication::sendEvent(m_composer, event);
        if (m_composerRest.isActive())
            m_composerRest.start(ComposerRest, this);
        return;
    }
    Q_EMIT keyPressed(FlexGridKeys::virtualKey(*event), FlexGridKeys::shiftBits(event->modifiers()));
    if (navigate(*event))
        return;
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (!FlexGridKeys::typesCharacter(*event)) {
        event->setAccepted(isTab); // otherwise the parent would move the focus
        return;
    }
    for (const char32_t character : event->text().toUcs4())
        Q_EMIT characterTyped(int(character));
}

void FlexGridView::keyReleaseEvent(QKeyEvent *event)
{
    Q_EMIT keyReleased(FlexGridKeys::virtualKey(*event), FlexGridKeys::shiftBits(event->modifiers()));
}

void FlexGridView::inputMethodEvent(QInputMethodEvent *event)
{
    if (!m_composer) {
        Q_EMIT inputMethodUsed(event);
        return;
    }
    QCoreApplication::sendEvent(m_composer, event);
    if (m_composer && event->preeditString().isEmpty())
        m_composerRest.start(ComposerRest, this);
    else
        m_composerRest.stop();
    updateMicroFocus();
}

void FlexGridView::composeIn(QWidget *box)
{
    m_composer = box;
    m_composerRest.stop();
    updateMicroFocus();
}

void FlexGridView::passFocusToComposer()
{
    QWidget *const box = m_composer;
    composeIn(nullptr);
    if (box && window()->focusWidget() == this)
        box->setFocus(Qt::OtherFocusReason);
}

QVariant FlexGridView::inputMethodQuery(Qt::InputMethodQuery query) const
{
    if (query == Qt::ImEnabled)
        return isEnabled() && !QApplication::activePopupWidget(); // the letters are the menu's
    if (m_composer) {
        const QVariant answer = m_composer->inputMethodQuery(query);
        const QPoint offset = mapFromGlobal(m_composer->mapToGlobal(QPoint()));
        return answer.typeId() == QMetaType::QRect ? answer.toRect().translated(offset) : answer;
    }
    if (query == Qt::ImCursorRectangle)
        return cellRect(m_state.selection.Row, m_state.selection.Col).translated(viewport()->pos());
    return QAbstractScrollArea::inputMethodQuery(query);
}

bool FlexGridView::navigate(const QKeyEvent &event)
{
    if (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier) || !m_state.hasData())
        return false;
    const GridSelection at = m_state.selection;
    if (event.matches(QKeySequence::SelectAll)) {
        Q_EMIT selectionWanted(
            {m_state.fixedRows, m_state.fixedCols, m_state.cells.rows() - 1, m_state.cells.cols() - 1});
        return true;
    }
    const bool extend = event.modifiers() & Qt::ShiftModifier;
    const bool far = event.modifiers() & Qt::ControlModifier;
    const int row = extend ? at.RowSel : at.Row;
    const int col = extend ? at.ColSel : at.Col;
    const int lastRow = m_state.cells.rows();
    switch (event.key()) {
    case Qt::Key_Up:
        move(far ? rowBeside(m_state.fixedRows - 1, 1) : rowBeside(row, -1), col, extend);
        return true;
    case Qt::Key_Down:
        move(far ? rowBeside(lastRow, -1) : rowBeside(row, 1), col, extend);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const int step = (event.key() == Qt::Key_Right) != m_state.rightToLeft ? 1 : -1;
        move(row, far ? colAtEnd(step) : colBeside(col, step), extend);
        return true;
    }
    case Qt::Key_Home:
        move(far ? rowBeside(m_state.fixedRows - 1, 1) : row, colAtEnd(-1), extend);
        return true;
    case Qt::Key_End:
        move(far ? rowBeside(lastRow, -1) : row, colAtEnd(1), extend);
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (far)
            return false;
        movePage(event.key() == Qt::Key_PageDown ? 1 : -1, row, col, extend);
        return true;
    default:
        return false;
    }
}

int FlexGridView::rowBeside(int row, int step) const
{
    for (int next = row + step; next >= m_state.fixedRows && next < m_state.cells.rows(); next += step) {
        if (rowPixels(next) > 0)
            return next;
    }
    return std::clamp(row, m_state.fixedRows, m_state.cells.rows() - 1);
}

int FlexGridView::colBeside(int col, int step) const
{
    for (int next = col + step; next >= m_state.fixedCols && next < m_state.cells.cols(); next += step) {
        if (colPixels(next) > 0)
            return next;
    }
    return std::clamp(col, m_state.fixedCols, m_state.cells.cols() - 1);
}

int FlexGridView::colAtEnd(int direction) const
{
    return direction > 0 ? colBeside(m_state.cells.cols(), -1) : colBeside(m_state.fixedCols - 1, 1);
}

int FlexGridView::rowsOnPage() const
{
    qint64 left = cellArea().height();
    int rows = 0;
    for (int row = m_topRow; row < m_state.cells.rows() && left >= rowPixels(row); ++row, ++rows)
        left -= rowPixels(row);
    return std::max(1, rows);
}

void FlexGridView::movePage(int direction, int row, int col, bool extend)
{
    const int step = direction * rowsOnPage();
    const int top = m_topRow;
    const int target = std::clamp(row + step, m_state.fixedRows, m_state.cells.rows() - 1);
    setTopRow(top + step);
    move(rowPixels(target) > 0 ? target : rowBeside(target, direction), col, extend);
}

void FlexGridView::move(int row, int col, bool extend)
{
    GridSelection wanted = m_state.selection;
    wanted.RowSel = row;
    wanted.ColSel = col;
    if (!extend) {
        wanted.Row = row;
        wanted.Col = col;
    }
    Q_EMIT selectionWanted(widened(wanted));
    scrollToCell(row, col);
}

GridSelection FlexGridView::widened(GridSelection selection) const
{
    if (m_state.look.SelectionMode == FlexGridLook::SelectionByRow) {
        selection.Col = m_state.fixedCols;
        selection.ColSel = m_state.cells.cols() - 1;
    } else if (m_state.look.SelectionMode == FlexGridLook::SelectionByCol) {
        selection.Row = m_state.fixedRows;
        selection.RowSel = m_state.cells.rows() - 1;
    }
    return selection;
}
