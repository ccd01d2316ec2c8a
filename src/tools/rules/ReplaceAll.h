#pragma once

#include "tools/rules/Search.h"

/// Replaces every match of one search in one go. Texts and count are what replacing match by match from the top would
/// give, at a cost that grows with the length of the texts only.
class ReplaceAll
{
public:
    /// Takes search text, scope and options from the search.
    ReplaceAll(const Search &search, const QString &ReplaceWith);

    /// How many matches were replaced, the cell of the last, and the 0-based position behind what was inserted there.
    struct Summary
    {
        int count = 0;
        int row = 0;
        int col = 0;
        int end = 0;
        bool operator==(const Summary &) const = default;
    };
    /// Each cell with a match is written once, column 1 from the top, then column 2.
    Summary run(CellStore &cells) const;

    /// The cell's text with every match replaced, how many there were, and where the last replacement ends.
    struct Replaced
    {
        QString text;
        int count = 0;
        qsizetype end = 0;
    };
    Replaced replaced(const QString &text) const;

private:
    void runColumn(CellStore &cells, int col, Summary &summary) const;

    TextFinder m_finder;
    int m_flags;
    QString m_with;
    bool m_withHoldsWhat; ///< then the search goes on behind the inserted text, else one character behind its start
};
