#include "print/rules/ColumnFlow.h"

#include <utility>

ColumnFlow::ColumnFlow(const Area &area)
    : m_area(area)
    , m_top(area.firstTop)
{
}

void ColumnFlow::nextColumn()
{
    if (++m_column == m_area.columns) {
        m_column = 0;
        ++m_page;
    }
    m_top = top();
}

ColumnFlow::Place ColumnFlow::add(int height)
{
    if (m_top + height > m_area.bottom && m_top > top())
        nextColumn();
    return {m_page, m_column, std::exchange(m_top, m_top + height)};
}
