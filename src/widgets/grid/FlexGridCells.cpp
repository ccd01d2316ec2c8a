#include "widgets/grid/FlexGridCells.h"

#include "platform/Twips.h"
#include "services/rules/CellText.h"

#include <algorithm>
#include <numeric>

namespace {

const QString NoText;

template <typename T> void cut(std::vector<T> &values, int size)
{
    if (values.size() > size_t(size))
        values.resize(size_t(size));
}

template <typename T> void insertInto(std::vector<T> &values, int at, int count, const T &value)
{
    if (size_t(at) < values.size())
        values.insert(values.begin() + at, size_t(count), value);
}

template <typename T> void removeFrom(std::vector<T> &values, int at, int count)
{
    if (size_t(at) < values.size()) {
        const size_t end = std::min(values.size(), size_t(at) + size_t(count));
        values.erase(values.begin() + at, values.begin() + qsizetype(end));
    }
}

template <typename T> void reorder(std::vector<T> &values, int first, const std::vector<int> &order, const T &missing)
{
    if (values.size() <= size_t(first))
        return;
    if (values.size() < size_t(first) + order.size())
        values.resize(size_t(first) + order.size(), missing);
    std::vector<T> moved;
    moved.reserve(order.size());
    for (const int from : order)
        moved.push_back(std::move(values[size_t(from)]));
    std::move(moved.begin(), moved.end(), values.begin() + first);
}

/// The order in which the element at from stands at to and all others keep theirs.
std::vector<int> orderOfMove(int first, int count, int from, int to)
{
    std::vector<int> order(size_t(count), 0);
    std::iota(order.begin(), order.end(), first);
    order.erase(order.begin() + (from - first));
    order.insert(order.begin() + (to - first), from);
    return order;
}

} // namespace

void FlexGridCells::setRows(int rows)
{
    if (rows < m_rows)
        ++m_revision;
    m_rows = rows;
    for (Column &column : m_columns)
        cut(column.texts, rows);
    cut(m_heights, rows);
    formats.cutToRows(rows);
}

void FlexGridCells::setCols(int cols)
{
    m_columns.resize(size_t(cols));
    formats.cutToCols(cols);
}

void FlexGridCells::clear()
{
    ++m_revision;
    for (Column &column : m_columns)
        column.texts.clear();
    formats.clear();
}

void FlexGridCells::numberRowsFrom(int firstRow)
{
    m_numbersFrom = firstRow;
    if (firstRow >= 0 && cols() > 0)
        cut(m_columns[0].texts, firstRow);
}

QString FlexGridCells::text(int row, int col) const
{
    if (isNumber(row, col))
        return row < m_rows ? QString::number(row) : QString();
    return word(row, col);
}

const QString &FlexGridCells::word(int row, int col) const
{
    if (row < 0 || col < 0 || col >= cols())
        return NoText;
    const std::vector<QString> &texts = m_columns[size_t(col)].texts;
    return size_t(row) < texts.size() ? texts[size_t(row)] : NoText;
}

void FlexGridCells::setText(int row, int col, const QString &text)
{
    if (!hasCell(row, col) || isNumber(row, col) || text == word(row, col))
        return;
    std::vector<QString> &texts = m_columns[size_t(col)].texts;
    if (size_t(row) >= texts.size())
        texts.resize(size_t(row) + 1);
    ++m_revision;
    texts[size_t(row)] = CellText::cleaned(text);
}

void FlexGridCells::setWords(std::vector<QString> &&first, std::vector<QString> &&second, std::vector<int> &&heights)
{
    setCols(std::max(cols(), 3));
    setRows(0);
    ++m_revision;
    m_rows = int(std::max({first.size(), second.size(), heights.size()}));
    for (std::vector<QString> *texts : {&first, &second}) {
        for (QString &text : *texts)
            text = CellText::cleaned(text);
    }
    for (int &height : heights)
        height = height < 0 ? m_defaultRowHeight : std::min(height, Twips::LargestSize);
    m_columns[1].texts = std::move(first);
    m_columns[2].texts = std::move(second);
    m_heights = std::move(heights);
}

int FlexGridCells::rowHeight(int row) const
{
    const int height = row >= 0 && size_t(row) < m_heights.size() ? m_heights[size_t(row)] : m_defaultRowHeight;
    return std::max(height, m_rowHeightMin);
}

void FlexGridCells::setRowHeight(int row, int twips)
{
    if (row < 0 || row >= m_rows)
        return;
    if (size_t(row) >= m_heights.size())
        m_heights.resize(size_t(row) + 1, m_defaultRowHeight);
    ++m_revision;
    m_heights[size_t(row)] = twips < 0 ? m_defaultRowHeight : std::min(twips, Twips::LargestSize);
}

void FlexGridCells::setDefaultRowHeight(int twips)
{
    m_defaultRowHeight = std::clamp(twips, 0, Twips::LargestSize);
}

void FlexGridCells::setEveryRowHeight(int twips)
{
    ++m_revision;
    m_heights.assign(size_t(m_rows), twips < 0 ? m_defaultRowHeight : std::min(twips, Twips::LargestSize));
}

void FlexGridCells::setRowHeightMin(int twips)
{
    m_rowHeightMin = std::clamp(twips, 0, Twips::LargestSize);
}

void FlexGridCells::setColWidth(int col, int twips)
{
    if (col < 0 || col >= cols())
        return;
    ++m_revision;
    column(col).width = twips < 0 ? DefaultColWidth : std::min(twips, Twips::LargestSize);
}

void FlexGridCells::insertRows(int at, int count)
{
    if (at < m_rows) // further empty rows at the end change nothing
        ++m_revision;
    for (Column &column : m_columns)
        insertInto(column.texts, at, count, QString());
    insertInto(m_heights, at, count, m_defaultRowHeight);
    formats.insertRows(at, count);
    m_rows += count;
}

void FlexGridCells::removeRows(int at, int count)
{
    ++m_revision;
    for (Column &column : m_columns)
        removeFrom(column.texts, at, count);
    removeFrom(m_heights, at, count);
    formats.removeRows(at, count);
    m_rows -= count;
}

void FlexGridCells::moveRow(int from, int to)
{
    const int first = std::min(from, to);
    reorderRows(first, orderOfMove(first, std::abs(from - to) + 1, from, to));
}

void FlexGridCells::moveColumn(int from, int to)
{
    const std::vector<int> order = orderOfMove(0, cols(), from, to);
    ++m_revision;
    reorder(m_columns, 0, order, Column());
    formats.reorderCols(order);
}

void FlexGridCells::reorderRows(int first, const std::vector<int> &order)
{
    ++m_revision;
    for (Column &column : m_columns)
        reorder(column.texts, first, order, QString());
    reorder(m_heights, first, order, m_defaultRowHeight);
    formats.reorderRows(first, order);
}
