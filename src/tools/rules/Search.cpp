#include "tools/rules/Search.h"

void Search::ResetSearch()
{
    CurRow = CurCol = CurPos = 1;
    MatchCount = 0;
    FoundAny = false;
}

void Search::EndRegion()
{
    ResetSearch();
    SearchDone = true;
}

TextFinder Search::finder() const
{
    return {FindWhat, (SearchFlags & SearchFlag::MatchCase) != 0, (SearchFlags & SearchFlag::WholeWords) != 0};
}

std::optional<Search::Match> Search::FindNext(const CellSource &cells)
{
    const bool wholeDocument = SearchFlags & SearchFlag::WholeDocument;
    if (!wholeDocument)
        CurCol = SearchFlags & SearchFlag::Language2 ? 2 : 1;
    const TextFinder textFinder = finder();
    std::optional<Match> match = findInColumn(cells, textFinder);
    if (!match && wholeDocument && CurCol == 1) {
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
        const qsizetype found = finder.find(QStringView(text).mid(from));
        if (found < 0) {
            CurPos = 1;
            continue;
        }
        const int start = from + int(found);
        CurRow = row;
        CurPos = start + 2;
        FoundAny = true;
        ++MatchCount;
        return Match{row, CurCol, start, int(finder.length())};
    }
    return std::nullopt;
}

void Search::SkipReplacement(const QString &ReplaceWith)
{
    if (ReplaceWith.contains(FindWhat, Qt::CaseInsensitive))
        CurPos += int(ReplaceWith.size()) - 1;
}
