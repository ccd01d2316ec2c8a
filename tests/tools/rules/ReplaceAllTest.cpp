#include "tools/rules/ReplaceAll.h"

#include "MemoryCells.h"

using namespace SearchFlag;

/// Replaces match by match: each step replaces the match of the step before and finds the next.
ReplaceAll::Summary replaceStepByStep(MemoryCells &cells, Search search, const QString &with)
{
    ReplaceAll::Summary summary;
    while (const auto match = search.FindNext(cells)) {
        summary = {summary.count + 1, match->row, match->col, match->start + int(with.size())};
        if (summary.count > 10000)
            break;
        QString text = cells.TextMatrix(match->row, match->col);
        cells.setTextMatrix(match->row, match->col, text.replace(match->start, match->length, with));
        search.SkipReplacement(with);
    }
    return summary;
}

TEST(ReplaceAll, EqualsTheSingleStepsOnRandomWords)
{
    std::mt19937 engine(1);
    for (int round = 0; round < 4000; ++round) {
        const QString letters = round % 2 ? "a " : "aAb é";
        const QStringList alphabet = letters.split("", Qt::SkipEmptyParts) << "😀";
        const auto word = [&](unsigned longest) {
            QString text;
            for (auto length = engine() % (longest + 1); length > 0; --length)
                text += alphabet[int(engine() % unsigned(alphabet.size()))];
            return text;
        };
        MemoryCells cells{};
        for (cells.words.resize(6); MemoryCells::Row & row : cells.words)
            row = {word(7), word(7)};
        MemoryCells expected = cells;
        const QString what = word(3), with = word(4);
        const int scopes[] = {Language1, Language2, WholeDocument};
        const int flags = scopes[engine() % 3] | (engine() % 2 ? MatchCase : 0) | (engine() % 2 ? WholeWords : 0);
        const Search search{flags, what.isEmpty() ? "a" : what};
        const ReplaceAll::Summary summary = replaceStepByStep(expected, search, with);
        EXPECT_EQ(ReplaceAll(search, with).run(cells), summary);
        ASSERT_EQ(cells.words, expected.words) << what.toStdString() << " -> " << with.toStdString() << " " << flags;
    }
}

TEST(ReplaceAll, GoesThroughLongCellsOnceAndEndsAtWhatIsNoWord)
{
    const QString a(200000, u'a');
    EXPECT_EQ(ReplaceAll(Search{WholeDocument, "ab"}, "ca").replaced(a + u'b').text, QString(199999, u'a') + "ca");
    EXPECT_EQ(ReplaceAll(Search{WholeDocument, "A"}, "xyz").replaced(a).text.size(), 600000);
    const Search words{WholeDocument | WholeWords, "a a"};
    EXPECT_EQ(ReplaceAll(words, "xba").replaced("a a a a").text, "xba a a");
}
