#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// A list as it was read: rows of texts, of any number a row. The letters stand in one block and a cell costs four
/// bytes beyond them, so that a file of millions of short words fits.
class TextTable
{
public:
    /// What is right of it is counted, not kept.
    static constexpr qsizetype MostColumns = 256;

    void addCell(QStringView text);
    void endRow();
    /// For as many as there will be at most.
    void reserve(qsizetype letters, qsizetype cells, qsizetype rows);

    qsizetype rows() const { return qsizetype(m_rowStarts.size()) - 1; }
    /// The widest row; what was not kept counts.
    qsizetype columns() const { return m_columns; }
    /// Of the widest row, what can be asked for.
    qsizetype keptColumns() const { return std::min(m_columns, MostColumns); }
    /// Empty where the row has no such cell.
    QStringView cell(qsizetype row, qsizetype column) const;
    bool isBlank(qsizetype row) const;
    bool isBlank(qsizetype row, qsizetype column) const;
    /// What it takes in memory.
    qsizetype bytes() const;

    /// What the file itself calls its columns; empty: nothing.
    QStringList columnNames;
    /// Columns that hold something else than words: tags, names of decks.
    std::vector<int> otherColumns;
    /// Formulas whose result the file does not hold.
    qsizetype missingResults = 0;

private:
    QString m_letters;
    std::vector<quint32> m_cellEnds;
    std::vector<quint32> m_rowStarts{0}; ///< the first cell of each row; the end of the last
    qsizetype m_columns = 0;
    qsizetype m_cellsInRow = 0;
};
