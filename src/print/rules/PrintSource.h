#pragma once

#include "print/rules/PrintSurface.h"

#include <QString>

/// A vocabulary as printing sees it.
class PrintSource
{
public:
    virtual ~PrintSource() = default;

    /// The caption of the document's window.
    virtual QString Caption() const = 0;
    /// The number of rows with the header row.
    virtual int Rows() const = 0;
    /// The text of a cell: row 0 holds the language names, column 0 the row numbers.
    virtual QString TextMatrix(int row, int col) const = 0;
    virtual PrintFont Font() const = 0;
    /// 0x00BBGGRR; with the top bit set a colour of the system.
    virtual int ForeColor() const = 0;
};
