#pragma once

#include "tools/rules/Cells.h"
#include "tools/rules/TextFinder.h"

#include <optional>

/// Scope and options of a search: one of the two languages or the whole document, and any of the options.
namespace SearchFlag {
enum : int { Language1 = 1, Language2 = 2, MatchCase = 8, WholeWords = 16, WholeDocument = 32 };
}

/// The state of a search that goes through the cells match by match: column 1 from top to bottom, then column 2, or one
/// column only. It knows no grid; whoever shows the matches asks for the next.
class Search
{
public:
    struct Match
    {
        int row;
        int col;
        int start; ///< 0-based position in the cell
        int length;
        bool operator==(const Match &) const = default;
    };

    int SearchFlags = 0;
    QString FindWhat;
    int CurRow = 1; ///< row, column and 1-based position where the next search begins; row 0 lies before all cells
    int CurCol = 1;
    int CurPos = 1;
    bool FoundAny = false; ///< a match since the last reset

    /// The next search begins at the top and has found nothing yet.
    void ResetSearch();
    /// The next match, which CurRow, CurCol and CurPos then follow; nothing at the end of the region. FindWhat must not
    /// be empty.
    std::optional<Match> FindNext(const CellSource &cells);
    /// The match before the last one, in the same order; the last one of the region when nothing has been found yet.
    std::optional<Match> FindPrevious(const CellSource &cells);
    /// Goes on from a cell, without looking into that one: the next search is for what comes behind it, or before it.
    void LeaveCell(int row, int col, bool backwards);
    /// To be called when the last match has been replaced: a replacement that holds the search text is not searched
    /// again.
    void SkipReplacement(const QString &ReplaceWith);

    TextFinder finder() const;

private:
    std::optional<Match> findInColumn(const CellSource &cells, const TextFinder &finder);
    std::optional<Match> findUpwards(const CellSource &cells, const TextFinder &finder);
    Match found(int row, int start, const TextFinder &finder);
    void goToEnd(const CellSource &cells, int col);
    bool isWhole() const { return SearchFlags & SearchFlag::WholeDocument; }
    int onlyColumn() const { return SearchFlags & SearchFlag::Language2 ? 2 : 1; }
};
