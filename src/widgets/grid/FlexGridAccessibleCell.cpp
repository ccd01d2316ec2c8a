#include "widgets/grid/FlexGridAccessibleCell.h"

#include "widgets/grid/FlexGridAccessible.h"
#include "widgets/grid/FlexGridView.h"

FlexGridAccessibleCell::FlexGridAccessibleCell(FlexGridView *view, int row, int col)
    : m_view(view)
    , m_row(row)
    , m_col(col)
{
}

bool FlexGridAccessibleCell::isValid() const
{
    return m_view && m_view->state().cells.hasCell(m_row, m_col);
}

QWindow *FlexGridAccessibleCell::window() const
{
    return m_view ? m_view->window()->windowHandle() : nullptr;
}

bool FlexGridAccessibleCell::isFixed() const
{
    return isValid() && m_view->state().isFixed(m_row, m_col);
}

FlexGridAccessible *FlexGridAccessibleCell::grid() const
{
    return static_cast<FlexGridAccessible *>(parent());
}

void *FlexGridAccessibleCell::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableCellInterface && isValid() && !isFixed())
        return static_cast<QAccessibleTableCellInterface *>(this);
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface *>(this);
    return nullptr;
}

QAccessibleInterface *FlexGridAccessibleCell::parent() const
{
    return m_view ? QAccessible::queryAccessibleInterface(m_view) : nullptr;
}

QString FlexGridAccessibleCell::text(QAccessible::Text kind) const
{
    return isValid() && kind == QAccessible::Name ? m_view->state().cells.text(m_row, m_col) : QString();
}

QRect FlexGridAccessibleCell::rect() const
{
    if (!isValid())
        return {};
    const QRect rect = m_view->cellRect(m_row, m_col);
    return {m_view->viewport()->mapToGlobal(rect.topLeft()), rect.size()};
}

QAccessible::Role FlexGridAccessibleCell::role() const
{
    if (!isFixed())
        return QAccessible::Cell;
    return m_row < m_view->state().fixedRows ? QAccessible::ColumnHeader : QAccessible::RowHeader;
}

QAccessible::State FlexGridAccessibleCell::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid)
        return state;
    state.offscreen = !m_view->viewport()->rect().intersects(m_view->cellRect(m_row, m_col));
    state.disabled = !m_view->isEnabled();
    if (!isFixed()) {
        state.focusable = true;
        state.selectable = true;
        state.selected = isSelected();
        state.focused = m_view->hasFocus() && m_view->state().selection.isCurrent(m_row, m_col);
    }
    return state;
}

bool FlexGridAccessibleCell::isSelected() const
{
    return isValid() && m_view->state().selection.contains(m_row, m_col);
}

QList<QAccessibleInterface *> FlexGridAccessibleCell::columnHeaderCells() const
{
    QList<QAccessibleInterface *> headers;
    for (int row = 0; isValid() && row < m_view->state().fixedRows; ++row)
        headers << grid()->cell(row, m_col);
    return headers;
}

QList<QAccessibleInterface *> FlexGridAccessibleCell::rowHeaderCells() const
{
    QList<QAccessibleInterface *> headers;
    for (int col = 0; isValid() && col < m_view->state().fixedCols; ++col)
        headers << grid()->cell(m_row, col);
    return headers;
}

int FlexGridAccessibleCell::columnIndex() const
{
    return isValid() ? m_col - m_view->state().fixedCols : -1;
}

int FlexGridAccessibleCell::rowIndex() const
{
    return isValid() ? m_row - m_view->state().fixedRows : -1;
}

QStringList FlexGridAccessibleCell::actionNames() const
{
    return isFixed() ? QStringList() : QStringList{setFocusAction(), pressAction()};
}

void FlexGridAccessibleCell::doAction(const QString &action)
{
    if (!isValid() || isFixed())
        return;
    m_view->wantSelection({m_row, m_col, m_row, m_col});
    m_view->scrollToCell(m_row, m_col);
    if (action == setFocusAction())
        m_view->setFocus();
    else if (action == pressAction())
        Q_EMIT m_view->cellDoubleClicked();
}
