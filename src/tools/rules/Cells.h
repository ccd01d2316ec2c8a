#pragma once

#include <QString>

/// Where search and sort read words: rows 1 to Rows() - 1, columns 1 and 2.
class CellSource
{
public:
    virtual ~CellSource() = default;
    virtual int Rows() const = 0;
    virtual QString TextMatrix(int row, int col) const = 0;
};

/// Where Replace All also writes them. Writing may append rows.
class CellStore : public CellSource
{
public:
    virtual void setTextMatrix(int row, int col, const QString &text) = 0;
};
