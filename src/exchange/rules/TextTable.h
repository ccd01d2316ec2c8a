#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// A list as it was read: rows of texts, of any number a row. The letters of many rows stand together; a cell and a row
/// cost four bytes each beyond them, so that a file of millions of short words fits.
class TextTable
{
public:
    /// What is right of it is counted, not kept.
    static constexpr qsizetype MostColumns = 256;

    void addCell(QStringView text);
    void endRow();

    qsizetype rows() const { return m_rows; }
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
    /// Gives up the memory of the rows before this one, which must not be asked for again.
    void forgetBefore(qsizetype row);

    /// What the file itself calls its columns; empty: nothing.
    QStringList columnNames;
    /// Columns that hold something else than words: tags, names of decks.
    std::vector<int> otherColumns;
    /// Formulas whose result the file does not hold.
    qsizetype missingResults = 0;

private:
    static constexpr qsizetype RowsOfBlock = 4096;

    struct Block
    {
        QString letters;
        std::vector<quint32> cellEnds;
        std::vector<quint32> rowEnds; ///< the cell behind the last of each row
    };

    Block &blockForMore();

    std::vector<Block> m_blocks; ///< all but the last are full
    qsizetype m_rows = 0;
    qsizetype m_letters = 0;
    qsizetype m_cells = 0;
    qsizetype m_columns = 0;
    qsizetype m_cellsInRow = 0;
    qsizetype m_forgotten = 0; ///< blocks
};
