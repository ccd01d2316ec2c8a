#pragma once

#include "tools/rules/Search.h"

/// Replaces every match of one search in one go. Texts and count are what replacing match by match from the top would
/// give, at a cost that grows with the length of the texts only.
class ReplaceAll
{
public:
    /// Takes search text, scope and options from the search.
    ReplaceAll(const Search &search, const QString &ReplaceWith);

    /// Each cell with a match is written once, column 1 from the top, then column 2. Returns the number of matches.
    int run(CellStore &cells) const;

    /// The cell's text with every match replaced, and how many there were.
    struct Replaced
    {
        QString text;
        int count = 0;
    };
    Replaced replaced(const QString &text) const;

private:
    int runColumn(CellStore &cells, int col) const;

    TextFinder m_finder;
    int m_flags;
    QString m_with;
    bool m_withHoldsWhat; ///< then the search goes on behind the inserted text, else one character behind its start
};
