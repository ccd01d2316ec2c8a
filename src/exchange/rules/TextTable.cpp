#include "exchange/rules/TextTable.h"

void TextTable::reserve(qsizetype letters, qsizetype cells, qsizetype rows)
{
    m_letters.reserve(letters);
    m_cellEnds.reserve(size_t(cells));
    m_rowStarts.reserve(size_t(rows) + 1);
}

void TextTable::addCell(QStringView text)
{
    if (++m_cellsInRow > MostColumns)
        return;
    m_letters.append(text);
    m_cellEnds.push_back(quint32(m_letters.size()));
}

void TextTable::endRow()
{
    m_columns = std::max(m_columns, m_cellsInRow);
    m_cellsInRow = 0;
    m_rowStarts.push_back(quint32(m_cellEnds.size()));
}

QStringView TextTable::cell(qsizetype row, qsizetype column) const
{
    const size_t at = m_rowStarts[size_t(row)] + size_t(column);
    if (at >= m_rowStarts[size_t(row) + 1])
        return {};
    const quint32 start = at == 0 ? 0 : m_cellEnds[at - 1];
    return QStringView(m_letters).mid(start, m_cellEnds[at] - start);
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
    return m_letters.size() * qsizetype(sizeof(QChar)) +
           qsizetype(m_cellEnds.size() + m_rowStarts.size()) * qsizetype(sizeof(quint32));
}
