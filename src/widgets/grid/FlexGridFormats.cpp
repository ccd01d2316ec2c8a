#include "widgets/grid/FlexGridFormats.h"

#include <utility>

const FlexGridCellFormat *FlexGridFormats::find(int row, int col) const
{
    const auto line = m_rows.find(row);
    if (line == m_rows.end())
        return nullptr;
    const auto cell = line->second.cells.find(col);
    return cell == line->second.cells.end() ? nullptr : &cell->second;
}

bool FlexGridFormats::mergeRow(int row) const
{
    const auto line = m_rows.find(row);
    return line != m_rows.end() && line->second.merge;
}

void FlexGridFormats::setMergeRow(int row, bool merge)
{
    if (merge || m_rows.count(row))
        m_rows[row].merge = merge;
}

void FlexGridFormats::cutToRows(int rows)
{
    m_rows.erase(m_rows.lower_bound(rows), m_rows.end());
}

void FlexGridFormats::cutToCols(int cols)
{
    for (auto &[index, row] : m_rows)
        row.cells.erase(row.cells.lower_bound(cols), row.cells.end());
}

void FlexGridFormats::insertRows(int at, int count)
{
    std::map<int, Row> moved;
    for (auto &[index, row] : m_rows)
        moved.emplace(index < at ? index : index + count, std::move(row));
    m_rows = std::move(moved);
}

void FlexGridFormats::removeRows(int at, int count)
{
    std::map<int, Row> left;
    for (auto &[index, row] : m_rows) {
        if (index < at || index >= at + count)
            left.emplace(index < at ? index : index - count, std::move(row));
    }
    m_rows = std::move(left);
}

void FlexGridFormats::reorderRows(int first, const std::vector<int> &order)
{
    if (m_rows.empty())
        return;
    std::map<int, Row> moved;
    for (size_t i = 0; i < order.size(); ++i) {
        const auto row = m_rows.find(order[i]);
        if (row == m_rows.end())
            continue;
        moved.emplace(first + int(i), std::move(row->second));
        m_rows.erase(row);
    }
    m_rows.merge(moved);
}

void FlexGridFormats::reorderCols(const std::vector<int> &order)
{
    for (auto &[index, row] : m_rows) {
        std::map<int, FlexGridCellFormat> moved;
        for (size_t i = 0; i < order.size(); ++i) {
            const auto cell = row.cells.find(order[i]);
            if (cell != row.cells.end())
                moved.emplace(int(i), std::move(cell->second));
        }
        row.cells = std::move(moved);
    }
}
