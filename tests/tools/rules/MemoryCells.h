#pragma once

#include "tools/rules/Search.h"

/// A vocabulary without a grid. A text written into the last row appends an empty row, as in a document.
class MemoryCells : public CellStore
{
public:
    using Row = std::array<QString, 2>;

    MemoryCells(std::initializer_list<Row> rows)
        : words(rows)
    {
    }

    int Rows() const override { return int(words.size()) + 1; }
    QString TextMatrix(int row, int col) const override { return words[row - 1][col - 1]; }
    void setTextMatrix(int row, int col, const QString &text) override
    {
        words[row - 1][col - 1] = text;
        if (row == Rows() - 1)
            words.push_back({});
    }

    std::vector<Row> words;
};
