#include "widgets/grid/FlexGridAccessible.h"

#include "widgets/grid/FlexGridAccessibleCell.h"
#include "widgets/grid/FlexGridView.h"

#include <numeric>

namespace {

QAccessibleInterface *create(const QString &, QObject *object)
{
    auto *view = qobject_cast<FlexGridView *>(object);
    return view ? new FlexGridAccessible(view) : nullptr;
}

QList<int> from(int first, int last)
{
    QList<int> numbers(std::max(0, last - first + 1));
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

} // namespace

void FlexGridAccessible::install()
{
    static const bool installed = (QAccessible::installFactory(create), true);
    Q_UNUSED(installed)
}

void FlexGridAccessible::announceCurrentCell(FlexGridView &view)
{
    if (!QAccessible::isActive() || !view.hasFocus() || !view.state().hasData())
        return;
    QAccessibleEvent event(&view, QAccessible::Focus);
    event.setChild(view.state().selection.Row * view.state().cells.cols() + view.state().selection.Col);
    QAccessible::updateAccessibility(&event);
}

void FlexGridAccessible::announceSelection(FlexGridView &view)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&view, QAccessible::SelectionWithin);
    QAccessible::updateAccessibility(&event);
}

void FlexGridAccessible::announceText(FlexGridView &view, int row, int col)
{
    if (!QAccessible::isActive() || !view.state().cells.hasCell(row, col))
        return;
    QAccessibleEvent event(&view, QAccessible::NameChanged);
    event.setChild(row * view.state().cells.cols() + col);
    QAccessible::updateAccessibility(&event);
}

void FlexGridAccessible::announceReset(FlexGridView &view)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleTableModelChangeEvent event(&view, QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&event);
}

FlexGridAccessible::FlexGridAccessible(FlexGridView *view)
    : QAccessibleWidget(view, QAccessible::Table)
{
}

FlexGridAccessible::~FlexGridAccessible()
{
    forgetCells();
}

void FlexGridAccessible::forgetCells()
{
    for (const auto &[index, id] : m_cells)
        QAccessible::deleteAccessibleInterface(id);
    m_cells.clear();
}

FlexGridView &FlexGridAccessible::view() const
{
    return *static_cast<FlexGridView *>(widget());
}

QAccessibleInterface *FlexGridAccessible::cell(int row, int col) const
{
    if (!view().state().cells.hasCell(row, col))
        return nullptr;
    const auto [known, isNew] = m_cells.try_emplace(row * view().state().cells.cols() + col, 0);
    if (isNew)
        known->second = QAccessible::registerAccessibleInterface(new FlexGridAccessibleCell(&view(), row, col));
    return QAccessible::accessibleInterface(known->second);
}

void *FlexGridAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString FlexGridAccessible::text(QAccessible::Text kind) const
{
    const QString own = QAccessibleWidget::text(kind);
    const bool named = kind != QAccessible::Name || !own.isEmpty() || !widget()->parentWidget();
    return named ? own : widget()->parentWidget()->accessibleName();
}

int FlexGridAccessible::childCount() const
{
    return view().state().cells.rows() * view().state().cells.cols();
}

QAccessibleInterface *FlexGridAccessible::child(int index) const
{
    const int cols = view().state().cells.cols();
    return index < 0 || cols == 0 ? nullptr : cell(index / cols, index % cols);
}

int FlexGridAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *cell = dynamic_cast<const FlexGridAccessibleCell *>(child);
    return cell && cell->isValid() ? cell->row() * view().state().cells.cols() + cell->col() : -1;
}

QAccessibleInterface *FlexGridAccessible::childAt(int x, int y) const
{
    const QPoint position = view().viewport()->mapFromGlobal(QPoint(x, y));
    if (!view().viewport()->rect().contains(position))
        return nullptr;
    return cell(view().rowAt(position.y()), view().colAt(position.x()));
}

QAccessibleInterface *FlexGridAccessible::focusChild() const
{
    const GridSelection &selection = view().state().selection;
    return view().hasFocus() ? cell(selection.Row, selection.Col) : QAccessibleWidget::focusChild();
}

QAccessibleInterface *FlexGridAccessible::cellAt(int row, int column) const
{
    const FlexGridState &state = view().state();
    const bool inside = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
    return inside ? cell(state.fixedRows + row, state.fixedCols + column) : nullptr;
}

int FlexGridAccessible::selectedCellCount() const
{
    return selectedRowSpan() * selectedColumnSpan();
}

QList<QAccessibleInterface *> FlexGridAccessible::selectedCells() const
{
    const GridSelection &selection = view().state().selection;
    QList<QAccessibleInterface *> cells;
    for (int row = selection.top(); row <= selection.bottom(); ++row) {
        for (int col = selection.left(); col <= selection.right(); ++col) {
            if (QAccessibleInterface *selected = cell(row, col))
                cells << selected;
        }
    }
    return cells;
}

QString FlexGridAccessible::columnDescription(int column) const
{
    const FlexGridState &state = view().state();
    return state.fixedRows > 0 && column >= 0 && column < columnCount() ? state.cells.text(0, state.fixedCols + column)
                                                                        : QString();
}

QString FlexGridAccessible::rowDescription(int row) const
{
    const FlexGridState &state = view().state();
    return state.fixedCols > 0 && row >= 0 && row < rowCount() ? state.cells.text(state.fixedRows + row, 0) : QString();
}

int FlexGridAccessible::selectedRowSpan() const
{
    return view().state().hasData() ? view().state().selection.rowCount() : 0;
}

int FlexGridAccessible::selectedColumnSpan() const
{
    return view().state().hasData() ? view().state().selection.colCount() : 0;
}

int FlexGridAccessible::selectedColumnCount() const
{
    return selectedRowSpan() == rowCount() ? selectedColumnSpan() : 0;
}

int FlexGridAccessible::selectedRowCount() const
{
    return selectedColumnSpan() == columnCount() ? selectedRowSpan() : 0;
}

int FlexGridAccessible::columnCount() const
{
    return view().state().cells.cols() - view().state().fixedCols;
}

int FlexGridAccessible::rowCount() const
{
    return view().state().cells.rows() - view().state().fixedRows;
}

QList<int> FlexGridAccessible::selectedColumns() const
{
    const int first = view().state().selection.left() - view().state().fixedCols;
    return from(first, first + selectedColumnCount() - 1);
}

QList<int> FlexGridAccessible::selectedRows() const
{
    const int first = view().state().selection.top() - view().state().fixedRows;
    return from(first, first + selectedRowCount() - 1);
}

bool FlexGridAccessible::isColumnSelected(int column) const
{
    const int first = view().state().selection.left() - view().state().fixedCols;
    return column >= first && column < first + selectedColumnCount();
}

bool FlexGridAccessible::isRowSelected(int row) const
{
    const int first = view().state().selection.top() - view().state().fixedRows;
    return row >= first && row < first + selectedRowCount();
}

bool FlexGridAccessible::selectRow(int row)
{
    if (row < 0 || row >= rowCount())
        return false;
    const FlexGridState &state = view().state();
    view().wantSelection({state.fixedRows + row, state.fixedCols, state.fixedRows + row, state.cells.cols() - 1});
    return true;
}

bool FlexGridAccessible::selectColumn(int column)
{
    if (column < 0 || column >= columnCount())
        return false;
    const FlexGridState &state = view().state();
    view().wantSelection({state.fixedRows, state.fixedCols + column, state.cells.rows() - 1, state.fixedCols + column});
    return true;
}

bool FlexGridAccessible::unselectRow(int)
{
    return false; // there is always a current cell, and it is selected
}

bool FlexGridAccessible::unselectColumn(int)
{
    return false;
}

void FlexGridAccessible::modelChange(QAccessibleTableModelChangeEvent *)
{
    forgetCells();
}
