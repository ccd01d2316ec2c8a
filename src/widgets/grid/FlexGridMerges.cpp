#include "widgets/grid/FlexGridMerges.h"

namespace {

bool areNeighbours(const std::vector<FlexGridBand> &bands, size_t i)
{
    return i + 1 < bands.size() && bands[i + 1].index == bands[i].index + 1;
}

} // namespace

bool FlexGridMerges::sameAcross(int row, int col) const
{
    const QString text = m_state.cells.text(row, col);
    return !text.isEmpty() && m_state.cells.formats.mergeRow(row) && text == m_state.cells.text(row, col + 1);
}

bool FlexGridMerges::sameDown(int row, int col) const
{
    const QString text = m_state.cells.text(row, col);
    return !text.isEmpty() && m_state.cells.column(col).merge && text == m_state.cells.text(row + 1, col);
}

bool FlexGridMerges::mergesAcross(int row, int col) const
{
    const int mode = m_state.look.MergeCells;
    const bool restricted = mode == FlexGridLook::RestrictRows || mode == FlexGridLook::RestrictBoth;
    bool merges = sameAcross(row, col);
    for (int above = row - 1; restricted && merges && above >= 0 && m_state.cells.formats.mergeRow(above); --above)
        merges = sameAcross(above, col);
    return merges;
}

bool FlexGridMerges::mergesDown(int row, int col) const
{
    const int mode = m_state.look.MergeCells;
    const bool restricted = mode == FlexGridLook::RestrictCols || mode == FlexGridLook::RestrictBoth;
    bool merges = sameDown(row, col);
    for (int before = col - 1; restricted && merges && before >= 0 && m_state.cells.column(before).merge; --before)
        merges = sameDown(row, before);
    return merges;
}

FlexGridMerges::Span FlexGridMerges::spanAt(const std::vector<FlexGridBand> &rows,
                                            const std::vector<FlexGridBand> &cols, size_t i, size_t j) const
{
    Span span;
    if (m_state.look.MergeCells == FlexGridLook::NoMerging)
        return span;
    const auto across = [&](size_t row, size_t col) {
        return areNeighbours(cols, col) && mergesAcross(rows[row].index, cols[col].index);
    };
    const auto isWide = [&](size_t row) { return across(row, j) || (j > 0 && across(row, j - 1)); };
    // a cell that grows to the side does not grow downwards too: its neighbours below may differ
    const auto down = [&](size_t row) {
        return areNeighbours(rows, row) && mergesDown(rows[row].index, cols[j].index) && !isWide(row) &&
               !isWide(row + 1);
    };
    span.begins = !(j > 0 && across(i, j - 1)) && !(i > 0 && down(i - 1));
    while (across(i, j + span.cols - 1))
        ++span.cols;
    while (down(i + span.rows - 1))
        ++span.rows;
    return span;
}
