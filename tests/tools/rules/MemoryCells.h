#pragma once

#include "tools/rules/Search.h"

inline Search searchFor(const QString &what, int flags)
{
    Search search;
    search.FindWhat = what;
    search.SearchFlags = flags;
    return search;
}

/// A vocabulary without a grid. A text written into the last row appends an empty row, as in a document.
class MemoryCells : public CellStore
{
public:
    using Row = std::array<QString, 2>;

    MemoryCells(std::initializer_list<Row> rows)
        : words(rows)
    {
    }

    /// Words of up to seven characters out of the alphabet.
    static MemoryCells random(std::mt19937 &engine, int rows, const QStringList &alphabet)
    {
        MemoryCells cells{};
        for (cells.words.resize(size_t(rows)); Row & row : cells.words)
            row = {randomWord(engine, alphabet, 7), randomWord(engine, alphabet, 7)};
        return cells;
    }

    static QString randomWord(std::mt19937 &engine, const QStringList &alphabet, int longest)
    {
        QString word;
        for (auto length = engine() % unsigned(longest + 1); length > 0; --length)
            word += alphabet[int(engine() % unsigned(alphabet.size()))];
        return word;
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
