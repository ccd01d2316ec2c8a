#include "exchange/rules/workbook/SheetCells.h"

#include "document/rules/Vocabulary.h"
#include "exchange/rules/archive/Limits.h"

void SheetCells::add(int row, int column, QStringView text)
{
    if (row < 0 || column < 0 || row > Vocabulary::MostRows || text.isEmpty())
        return;
    m_cells.push_back({row, column, quint32(m_letters.size()), quint32(text.size())});
    m_letters += text;
    m_limits.keep(qsizetype(m_cells.size() * sizeof(Cell)) + m_letters.size() * qsizetype(sizeof(QChar)));
}

/// Cells that the row lacks; what is far to the right is as far as the last that is kept.
void SheetCells::fill(TextTable &table, qsizetype &column, int upTo)
{
    for (; column < std::min<qsizetype>(upTo, TextTable::MostColumns); ++column)
        table.addCell({});
}

TextTable SheetCells::take()
{
    if (!std::is_sorted(m_cells.begin(), m_cells.end()))
        std::stable_sort(m_cells.begin(), m_cells.end());
    TextTable table;
    const qsizetype rows = m_cells.empty() ? 0 : m_cells.back().row + 1;
    table.missingResults = m_missing;
    qsizetype column = 0;
    for (size_t i = 0; i < m_cells.size(); ++i) {
        const Cell &cell = m_cells[i];
        for (; table.rows() < cell.row; column = 0)
            table.endRow();
        fill(table, column, cell.column);
        const bool again = i + 1 < m_cells.size() && !(cell < m_cells[i + 1]);
        if (!again) {
            table.addCell(QStringView(m_letters).mid(cell.start, cell.size));
            ++column;
        }
    }
    if (rows > 0)
        table.endRow();
    return table;
}
