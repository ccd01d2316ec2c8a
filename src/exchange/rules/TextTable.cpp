#include "exchange/rules/TextTable.h"

/// A full one keeps no room to grow.
TextTable::Block &TextTable::blockForMore()
{
    if (m_blocks.size() * RowsOfBlock == size_t(m_rows) && m_cellsInRow == 0) {
        if (!m_blocks.empty()) {
            m_blocks.back().letters.squeeze();
            m_blocks.back().cellEnds.shrink_to_fit();
        }
        m_blocks.emplace_back();
    }
    return m_blocks.back();
}

void TextTable::addCell(QStringView text)
{
    Block &block = blockForMore();
    if (++m_cellsInRow > MostColumns)
        return;
    block.letters.append(text);
    block.cellEnds.push_back(quint32(block.letters.size()));
    m_letters += text.size();
    ++m_cells;
}

void TextTable::endRow()
{
    Block &block = blockForMore();
    block.rowEnds.push_back(quint32(block.cellEnds.size()));
    m_columns = std::max(m_columns, m_cellsInRow);
    m_cellsInRow = 0;
    ++m_rows;
}

QStringView TextTable::cell(qsizetype row, qsizetype column) const
{
    const Block &block = m_blocks[size_t(row / RowsOfBlock)];
    const size_t rowInBlock = size_t(row % RowsOfBlock);
    const size_t at = (rowInBlock == 0 ? 0 : block.rowEnds[rowInBlock - 1]) + size_t(column);
    if (at >= block.rowEnds[rowInBlock])
        return {};
    const quint32 start = at == 0 ? 0 : block.cellEnds[at - 1];
    return QStringView(block.letters).mid(start, block.cellEnds[at] - start);
}

bool TextTable::isBlank(qsizetype row) const
{
    for (qsizetype column = 0; column < keptColumns(); ++column) {
        if (!isBlank(row, column))
            return false;
    }
    return true;
}

bool TextTable::isBlank(qsizetype row, qsizetype column) const
{
    const QStringView text = cell(row, column);
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isSpace() || c.isNull(); });
}

qsizetype TextTable::bytes() const
{
    return m_letters * qsizetype(sizeof(QChar)) + (m_cells + m_rows) * qsizetype(sizeof(quint32));
}

void TextTable::forgetBefore(qsizetype row)
{
    for (; m_forgotten < row / RowsOfBlock; ++m_forgotten)
        m_blocks[size_t(m_forgotten)] = {};
}
