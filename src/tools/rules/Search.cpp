#include "tools/rules/Search.h"

#include <limits>

namespace {

constexpr int BehindCell = std::numeric_limits<int>::max();

} // namespace

void Search::ResetSearch()
{
    CurRow = CurCol = CurPos = 1;
    FoundAny = false;
}

TextFinder Search::finder() const
{
    return {FindWhat, (SearchFlags & SearchFlag::MatchCase) != 0, (SearchFlags & SearchFlag::WholeWords) != 0};
}

std::optional<Search::Match> Search::FindNext(const CellSource &cells)
{
    if (!isWhole())
        CurCol = onlyColumn();
    const TextFinder textFinder = finder();
    std::optional<Match> match = findInColumn(cells, textFinder);
    if (!match && isWhole() && CurCol == 1) {
        CurCol = 2;
        CurRow = CurPos = 1;
        match = findInColumn(cells, textFinder);
    }
    return match;
}

std::optional<Search::Match> Search::findInColumn(const CellSource &cells, const TextFinder &finder)
{
    const int rows = cells.Rows();
    for (int row = CurRow; row < rows; ++row) {
        const QString text = cells.TextMatrix(row, CurCol);
        const int from = std::min(CurPos - 1, int(text.size()));
        const qsizetype start = finder.find(QStringView(text).mid(from));
        if (start >= 0)
            return found(row, from + int(start), finder);
        CurPos = 1;
    }
    return std::nullopt;
}

std::optional<Search::Match> Search::FindPrevious(const CellSource &cells)
{
    const bool fromEnd = CurRow == 1 && CurPos == 1 && !(isWhole() && CurCol == 2);
    if (!isWhole())
        CurCol = onlyColumn();
    if (fromEnd)
        goToEnd(cells, isWhole() ? 2 : CurCol);
    const TextFinder textFinder = finder();
    std::optional<Match> match = findUpwards(cells, textFinder);
    if (!match && isWhole() && CurCol == 2) {
        goToEnd(cells, 1);
        match = findUpwards(cells, textFinder);
    }
    return match;
}

void Search::goToEnd(const CellSource &cells, int col)
{
    CurCol = col;
    CurRow = cells.Rows() - 1;
    CurPos = BehindCell;
}

std::optional<Search::Match> Search::findUpwards(const CellSource &cells, const TextFinder &finder)
{
    for (int row = std::min(CurRow, cells.Rows() - 1); row >= 1; --row) {
        const qsizetype start = finder.findLast(cells.TextMatrix(row, CurCol), CurPos - 2);
        if (start >= 0)
            return found(row, int(start), finder);
        CurPos = BehindCell;
    }
    return std::nullopt;
}

Search::Match Search::found(int row, int start, const TextFinder &finder)
{
    CurRow = row;
    CurPos = start + 2;
    FoundAny = true;
    return {row, CurCol, start, int(finder.length())};
}

void Search::LeaveCell(int row, int col, bool backwards)
{
    CurCol = isWhole() ? col : onlyColumn();
    const bool skips = backwards ? CurCol >= col : CurCol <= col; // else the row's other cell lies in that direction
    CurRow = skips && backwards ? row - 1 : row;
    CurPos = skips || backwards ? BehindCell : 1;
}

void Search::SkipReplacement(const QString &ReplaceWith)
{
    if (ReplaceWith.contains(FindWhat, Qt::CaseInsensitive))
        CurPos += int(ReplaceWith.size()) - 1;
}
