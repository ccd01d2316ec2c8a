#pragma once

#include <vector>

/// Lays blocks one below the other into the columns of as many pages as they need.
class ColumnFlow
{
public:
    /// Where a block stands: its page and column from 0, its top in twips.
    struct Place
    {
        int page;
        int column;
        int top;
        bool operator==(const Place &) const = default;
    };

    /// Twips from the top of a page. A first page may begin lower than those that follow.
    struct Area
    {
        int columns;
        int firstTop;
        int top;
        int bottom;
    };

    explicit ColumnFlow(const Area &area);

    /// Places the next block; one that is higher than a column gets a column of its own and runs over.
    Place add(int height);
    /// The pages begun so far; one at least.
    int pageCount() const { return m_page + 1; }

private:
    int top() const { return m_page == 0 ? m_area.firstTop : m_area.top; }
    void nextColumn();

    Area m_area;
    int m_page = 0;
    int m_column = 0;
    int m_top;
};
