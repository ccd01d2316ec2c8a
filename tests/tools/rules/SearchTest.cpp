#include "tools/rules/Search.h"

#include "MemoryCells.h"

using namespace SearchFlag;

TEST(IsLetter, FollowsTheCodesOfWindows1252)
{
    const QString ranges = "09AZazŠŠŒŒššœœŸŸÀÖØöøÿ"; // first and last letters
    for (int code = 0; code <= 0xFFFF; ++code) {
        bool isLetter = false;
        for (qsizetype i = 0; i < ranges.size(); i += 2)
            isLetter |= ranges[i] <= QChar(code) && QChar(code) <= ranges[i + 1];
        EXPECT_EQ(IsLetter(QChar(code)), isLetter) << code;
    }
}

/// Everything found until the region ends, as "A1:0 B3:2": column, row and position.
std::string foundIn(const MemoryCells &cells, const QString &what, int flags)
{
    Search search{flags, what};
    QStringList found, backwards;
    const auto name = [&](const Search::Match &match) {
        EXPECT_EQ(match.length, what.size());
        return QStringLiteral("%1%2:%3").arg(QChar(u'@' + match.col)).arg(match.row).arg(match.start);
    };
    while (const auto match = search.FindNext(cells))
        found.append(name(*match));
    EXPECT_EQ(search.FoundAny, !found.isEmpty());
    search.ResetSearch();
    EXPECT_FALSE(search.FoundAny);
    while (const auto match = search.FindPrevious(cells))
        backwards.prepend(name(*match));
    EXPECT_TRUE(backwards == found || flags & WholeWords) << "going back looks at every occurrence";
    return found.join(u' ').toStdString();
}

TEST(Search, FindsInOrder)
{
    const std::tuple<MemoryCells, QString, int, const char *> cases[] = {
        {{{"aXa", "a"}, {"", "ba"}, {"A", ""}}, "a", WholeDocument, "A1:0 A1:2 A3:0 B1:0 B2:1"},
        {{{"aXa", "a"}, {"", "ba"}, {"A", ""}}, "a", Language1 | MatchCase, "A1:0 A1:2"},
        {{{"aXa", "a"}, {"", "ba"}, {"A", ""}}, "A", Language2, "B1:0 B2:1"},
        {{{"aaa", ""}}, "aa", WholeDocument, "A1:0 A1:1"},
        // whole words
        {{{"cats", "cat"}, {"the cat sat", "cathedral cat"}}, "cat", WholeDocument | WholeWords, "A2:4 B1:0"},
        {{{"cat\u017E", "\u00B5cat"}}, "cat", WholeDocument | WholeWords, "A1:0 B1:1"}, // codes 158 and 181
        {{{"cat\u00E9", "\u00DFcat"}}, "cat", WholeDocument | WholeWords, ""},
        {{{"aba b", ""}}, "b", WholeDocument | WholeWords, ""},
        // the start of what remains counts as the start of a word
        {{{"-xx", ""}}, "x", WholeDocument | WholeWords, ""},
        // other scripts; characters that change their length when written in capitals keep the positions right
        {{{"\u00DF\u1E9E\u0130\u0130ab", "\u041C\u041E\u0421\u041A\u0412\u0410"}}, "AB", WholeDocument, "A1:4"},
        {{{"", "\u041C\u041E\u0421\u041A\u0412\u0410"}}, "\u043A\u0432", WholeDocument, "B1:3"},
        {{{"\U00010400\U00010401x", ""}}, "\U00010429", WholeDocument, "A1:2"},
    };
    for (const auto &[cells, what, flags, found] : cases)
        EXPECT_EQ(foundIn(cells, what, flags), found) << what.toStdString() << " " << flags;
}

TEST(Search, GoesOnFromACellInBothDirectionsAndFromWhereItStands)
{
    const MemoryCells cells{{"x", "x"}, {"x x", "xx"}, {"cx x", ""}};
    const std::tuple<int, int, int, bool, Search::Match> cases[] = {
        {WholeDocument, 2, 1, false, {3, 1, 1, 1}}, {WholeDocument, 2, 1, true, {1, 1, 0, 1}},
        {WholeDocument, 1, 2, true, {3, 1, 3, 1}},  {Language1, 2, 2, false, {3, 1, 1, 1}},
        {Language2, 2, 1, false, {2, 2, 0, 1}},     {Language1, 2, 2, true, {2, 1, 2, 1}},
        {Language2, 2, 1, true, {1, 2, 0, 1}},      {Language1 | WholeWords, 1, 1, true, {}},
    };
    for (const auto &[flags, row, col, backwards, expected] : cases) {
        Search search{flags, "x"};
        search.LeaveCell(row, col, backwards);
        const auto match = backwards ? search.FindPrevious(cells) : search.FindNext(cells);
        EXPECT_EQ(match.value_or(Search::Match{}), expected) << flags << row << col;
    }
    // from column 2 the search leads back only when the region has ended
    MemoryCells later{{"", "x"}, {"", "x"}};
    Search search{WholeDocument, "x"};
    EXPECT_EQ(search.FindNext(later), (Search::Match{1, 2, 0, 1}));
    later.words[1][0] = "x";
    EXPECT_EQ(search.FindNext(later), (Search::Match{2, 2, 0, 1}));
    EXPECT_EQ(search.FindNext(later), std::nullopt);
    search.ResetSearch();
    EXPECT_EQ(search.FindNext(later), (Search::Match{2, 1, 0, 1}));
    later.words.pop_back(); // the row of the match has gone
    EXPECT_EQ(search.FindNext(later), (Search::Match{1, 2, 0, 1}));
}
