#include "widgets/grid/FlexGrid.h"

#include "services/rules/ClipText.h"
#include "services/rules/SortOrder.h"
#include "widgets/grid/FlexGridAccessible.h"
#include "widgets/grid/FlexGridView.h"

#include <QStringList>

#include <algorithm>
#include <numeric>

void FlexGrid::setRows(int rows)
{
    rows = std::max(rows, FixedRows());
    if (rows <= Row())
        leavingCell();
    m_state.cells.setRows(rows);
    restructured();
    propertyChanged("Rows");
}

void FlexGrid::setCols(int cols)
{
    cols = std::max(cols, FixedCols());
    if (cols <= Col())
        leavingCell();
    m_state.cells.setCols(cols);
    restructured();
    propertyChanged("Cols");
}

void FlexGrid::setFixedRows(int rows)
{
    m_state.fixedRows = std::clamp(rows, 0, Rows());
    setRowNumbers(m_rowNumbers);
    restructured();
    propertyChanged("FixedRows");
}

void FlexGrid::setFixedCols(int cols)
{
    m_state.fixedCols = std::clamp(cols, 0, Cols());
    restructured();
    propertyChanged("FixedCols");
}

void FlexGrid::setTextMatrix(int row, int col, const QString &text)
{
    m_state.cells.setText(row, col, text);
    draw();
    FlexGridAccessible::announceText(*m_view, row, col);
}

QString FlexGrid::TextArray(int index) const
{
    return Cols() > 0 && index >= 0 ? TextMatrix(index / Cols(), index % Cols()) : QString();
}

void FlexGrid::setTextArray(int index, const QString &text)
{
    if (Cols() > 0 && index >= 0)
        setTextMatrix(index / Cols(), index % Cols(), text);
}

QString FlexGrid::Text() const
{
    return TextMatrix(Row(), Col());
}

void FlexGrid::setText(const QString &text)
{
    setTextMatrix(Row(), Col(), text);
}

void FlexGrid::AddItem(const QString &item, int index)
{
    const int at = index < 0 ? Rows() : index;
    if (!insertRows(at, 1))
        return;
    const QStringList cells = item.split(u'\t');
    for (int col = 0; col < std::min(int(cells.size()), Cols()); ++col)
        m_state.cells.setText(at, col, cells.at(col));
}

bool FlexGrid::RemoveItem(int index)
{
    return removeRows(index, 1);
}

bool FlexGrid::insertRows(int index, int count)
{
    if (index < FixedRows() || index > Rows() || count <= 0)
        return false;
    if (index <= Row())
        leavingCell();
    m_state.cells.insertRows(std::min(index, Rows()), count);
    restructured();
    return true;
}

bool FlexGrid::removeRows(int index, int count)
{
    if (index < FixedRows() || count <= 0 || count > Rows() - index || count >= Rows() - FixedRows())
        return false;
    if (index <= Row())
        leavingCell();
    m_state.cells.removeRows(index, count);
    restructured();
    return true;
}

void FlexGrid::Clear()
{
    leavingCell();
    m_state.cells.clear();
    draw();
}

void FlexGrid::setRowPosition(int row, int position)
{
    if (row < 0 || row >= Rows() || position < 0 || position >= Rows() || row == position)
        return;
    leavingCell();
    m_state.cells.moveRow(row, position);
    restructured();
}

void FlexGrid::setColPosition(int col, int position)
{
    if (col < 0 || col >= Cols() || position < 0 || position >= Cols() || col == position)
        return;
    leavingCell();
    m_state.cells.moveColumn(col, position);
    restructured();
}

void FlexGrid::setRowNumbers(bool numbers)
{
    m_rowNumbers = numbers;
    m_state.cells.numberRowsFrom(numbers ? FixedRows() : -1);
    layOutAgain();
}

void FlexGrid::setWords(std::vector<QString> &&first, std::vector<QString> &&second, std::vector<int> &&heights)
{
    leavingCell();
    m_state.cells.setWords(std::move(first), std::move(second), std::move(heights));
    m_state.fixedRows = std::min(m_state.fixedRows, Rows());
    restructured();
}

QString FlexGrid::Clip() const
{
    const GridSelection &selection = m_state.selection;
    if (!m_state.cells.hasCell(selection.top(), selection.left()))
        return {};
    QString text;
    for (int row = selection.top(); row <= selection.bottom(); ++row) {
        if (row > selection.top())
            text += u'\r';
        for (int col = selection.left(); col <= selection.right(); ++col) {
            if (col > selection.left())
                text += u'\t';
            text += m_state.cells.isNumber(row, col) ? TextMatrix(row, col) : word(row, col);
        }
    }
    return text;
}

void FlexGrid::setClip(const QString &text)
{
    const GridSelection selection = m_state.selection;
    const std::vector<ClipText::Row> rows = ClipText::parse(text);
    const int bottom = std::min(selection.bottom(), selection.top() + int(rows.size()) - 1);
    for (int row = selection.top(); row <= bottom; ++row) {
        const ClipText::Row &fields = rows[size_t(row - selection.top())];
        const int right = std::min(selection.right(), selection.left() + int(fields.size()) - 1);
        for (int col = selection.left(); col <= right; ++col)
            m_state.cells.setText(row, col, fields[size_t(col - selection.left())]);
    }
    draw();
}

void FlexGrid::setSort(int kind)
{
    if (kind <= SortNone || kind > SortCustom || !m_state.hasData())
        return;
    leavingCell();
    const GridSelection &selection = m_state.selection;
    const bool all = selection.Row == selection.RowSel;
    const int first = all ? FixedRows() : std::max(selection.top(), FixedRows());
    const int last = all ? Rows() - 1 : selection.bottom();
    reorderRows(first, kind == SortCustom ? customOrder(first, last) : orderByText(kind, first, last));
}

std::vector<int> FlexGrid::orderByText(int kind, int first, int last) const
{
    SortOrder::Request request{first, last, {}, kind % 2 == 0, locale(), SortOrder::Rule((kind - 1) / 2)};
    for (int col = m_state.selection.left(); col <= m_state.selection.right(); ++col)
        request.columns.push_back(col);
    return SortOrder::sortedRows([this](int row, int col) { return TextMatrix(row, col); }, request);
}

std::vector<int> FlexGrid::customOrder(int first, int last)
{
    std::vector<int> order(size_t(std::max(0, last - first + 1)));
    std::iota(order.begin(), order.end(), first);
    std::stable_sort(order.begin(), order.end(), [this](int row1, int row2) {
        int result = 0;
        Q_EMIT Compare(row1, row2, result);
        return result < 0;
    });
    return order;
}

void FlexGrid::reorderRows(int first, const std::vector<int> &order)
{
    leavingCell();
    m_state.cells.reorderRows(first, order);
    restructured();
}
