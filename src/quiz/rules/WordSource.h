#pragma once

#include <QString>

/// Where a quiz takes its words from: a vocabulary as rows of texts. Row 0 holds the names of the two languages in
/// columns 1 and 2, the rows from 1 on the word pairs.
class WordSource
{
public:
    virtual ~WordSource() = default;

    /// The number of rows, row 0 included.
    virtual int Rows() const = 0;
    virtual QString TextMatrix(int row, int col) const = 0;
};
