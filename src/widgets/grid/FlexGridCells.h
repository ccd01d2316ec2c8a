#pragma once

#include "widgets/grid/FlexGridFormats.h"

#include <QString>

#include <vector>

/// What a flex grid holds: the texts, the sizes in twips and the formats of its rows and columns. It knows no screen.
/// Texts stand column by column and a column is no longer than its last text, so that a row costs its words and one
/// height. Reading outside the grid gives an empty text or a default; writing there does nothing.
class FlexGridCells
{
public:
    static constexpr int DefaultRowHeight = 285;
    static constexpr int DefaultColWidth = 960;
    static constexpr int GeneralAlignment = 9;

    struct Column
    {
        std::vector<QString> texts;
        int width = DefaultColWidth;
        int alignment = GeneralAlignment;
        int fixedAlignment = -1; ///< -1: as alignment
        int data = 0;
        bool merge = false;
    };

    FlexGridFormats formats;

    int rows() const { return m_rows; }
    int cols() const { return int(m_columns.size()); }
    void setRows(int rows);
    void setCols(int cols);
    bool hasCell(int row, int col) const { return row >= 0 && row < m_rows && col >= 0 && col < cols(); }
    void clear();

    /// The rows from here on show their number in column 0 and keep no text there; -1: no row does.
    void numberRowsFrom(int firstRow);
    bool numbersRows() const { return m_numbersFrom >= 0; }
    bool isNumber(int row, int col) const { return col == 0 && numbersRows() && row >= m_numbersFrom; }

    /// Goes up whenever a text or a size may have changed or a row got another place.
    quint64 revision() const { return m_revision; }

    QString text(int row, int col) const;
    /// The text that is kept for the cell, without a copy; a computed row number is none.
    const QString &word(int row, int col) const;
    void setText(int row, int col, const QString &text);
    /// Replaces rows, texts of columns 1 and 2 and heights by those handed over; row 0 comes first. The longest of the
    /// three tells the number of rows.
    void setWords(std::vector<QString> &&first, std::vector<QString> &&second, std::vector<int> &&heights);

    /// Height of a row in twips, exactly as it was set. A negative height sets the default.
    int rowHeight(int row) const;
    void setRowHeight(int row, int twips);
    void setEveryRowHeight(int twips);
    /// What rows have whose height was never set.
    void setDefaultRowHeight(int twips);
    int rowHeightMin() const { return m_rowHeightMin; }
    void setRowHeightMin(int twips);

    /// Column i must exist.
    Column &column(int i) { return m_columns[size_t(i)]; }
    const Column &column(int i) const { return m_columns[size_t(i)]; }
    void setColWidth(int col, int twips);

    /// at may be the number of rows: the rows are appended.
    void insertRows(int at, int count);
    void removeRows(int at, int count);
    void moveRow(int from, int to);
    void moveColumn(int from, int to);
    /// Row first + i takes what row order[i] had; order holds each of the rows from first on once.
    void reorderRows(int first, const std::vector<int> &order);

private:
    int m_rows = 0;
    quint64 m_revision = 0;
    int m_numbersFrom = -1;
    int m_rowHeightMin = 0;
    int m_defaultRowHeight = DefaultRowHeight;
    std::vector<Column> m_columns;
    std::vector<int> m_heights; ///< no longer than the last row whose height was set
};
