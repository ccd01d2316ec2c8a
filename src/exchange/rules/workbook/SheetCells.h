#pragma once

#include "exchange/rules/TextTable.h"

class Limits;

/// The cells of one sheet while they are read, which may come in any order, and with gaps.
class SheetCells
{
public:
    explicit SheetCells(const Limits &limits)
        : m_limits(limits)
    {
    }

    /// Rows and columns count from 0. Empty texts need not be told. Throws ReadFailure when there are too many.
    void add(int row, int column, QStringView text);
    /// A formula that has no result.
    void addMissing() { ++m_missing; }
    TextTable take();

private:
    struct Cell
    {
        int row;
        int column;
        quint32 start;
        quint32 size;
        bool operator<(const Cell &other) const { return row != other.row ? row < other.row : column < other.column; }
    };

    static void fill(TextTable &table, qsizetype &column, int upTo);

    const Limits &m_limits;
    QString m_letters;
    std::vector<Cell> m_cells;
    qsizetype m_missing = 0;
};
