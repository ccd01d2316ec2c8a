#include "print/rules/modUtskrift.h"
#include "support/RecordingPrinter.h"

namespace {

// With 100 twips a letter: column 1 begins at 1750 and words end at 6700 - 800 = 5900; column 2 begins at 6700 and
// words end at 11900 - 800 = 11100. The first row stands at 2230, rows follow each 250.

QString word(int letters, QChar letter = 'x')
{
    return QString(letters, letter);
}

struct PageLayout : ::testing::Test
{
    RecordingPrinter printer;
    PrintSource source;

    PrintLayout layout(double zoom = 1.0) const { return {std::make_shared<PrintSource>(source), printer, zoom}; }
    RecordingSurface page(int number, double zoom = 1.0) const
    {
        RecordingSurface surface = usedSurface();
        layout(zoom).drawPage(number, surface);
        return surface;
    }
};

TEST_F(PageLayout, PutsEverythingInItsPlace)
{
    constexpr int red = 0x0000ff, ofWindows = int(0x80000008u);
    const QString han = word(50, QChar(0x6f22));
    const std::tuple<std::vector<std::pair<QString, QString>>, int, const char *> cases[] = {
        {{{"house", "Haus"}, {"dog", {}}}, red, "coloured"},
        {{{"peace שלום", "שלום New York"}, {word(30, u'א') + ' ' + word(12, u'ב'), word(60, u'ש')}},
         ofWindows,
         "two_directions"},
        // The last row is the last with a first word.
        {{{"a", {}}, {{}, {}}, {"b", {}}, {{}, "lost"}}, 0, "gaps"},
        // The first column takes 41 letters up to its gap. Two blanks are two; a word that runs over begins a line of
        // its own; Chinese is written without blanks.
        {{{word(20) + ' ' + word(20), word(30) + ' ' + word(33)},
          {word(20) + ' ' + word(21), "short"},
          {word(10) + "  " + word(29), "short"},
          {word(10) + "  " + word(30), "short"},
          {word(41), "short"},
          {word(42), "short"},
          {word(30) + ' ' + word(31) + ' ' + word(32), "short"},
          {"a " + han, han.left(44) + word(9)},
          {word(30) + '-' + word(30), "short"},
          {"last", {}}},
         0,
         "wrapped"},
    };
    for (const auto &[pairs, color, name] : cases) {
        source = sourceOf(pairs);
        source.ForeColor = color;
        source.second[0] = color == ofWindows ? "עברית" : "German";
        EXPECT_EQ(page(0).described(), drawnAs(name));
    }
    source = sourceOf(12);
    source.first[4] = word(20) + ' ' + word(21) + ' ' + word(9);
    EXPECT_EQ(page(0).described(), drawnAs("twelve")) << "numbers end at one edge";
    EXPECT_EQ(page(0, 3.0).described(), drawnAs("twelve_at_a_third"));
    EXPECT_EQ(layout(3.0).pageWidth(), 3967);
}

TEST_F(PageLayout, BreaksThePageAfterTheRowThatFillsIt)
{
    const std::tuple<int, int, int> cases[] = {{48, 1, 1}, {49, 2, 0},  {50, 2, 50},
                                               {98, 3, 0}, {99, 3, 99}, {100000, 2041, 99961}};
    printer.size.setHeight(2230 + 48 * 250 + 2500); // a row that ends at the limit is not the last
    for (const auto &[rows, pages, lastPageFirstRow] : cases) {
        source = sourceOf(rows);
        source.ForeColor = 0x4080c1;
        ASSERT_EQ(layout().pageCount(), pages) << rows;
        const RecordingSurface last = page(pages - 1);
        EXPECT_TRUE(last.texts.back().text == QString::number(pages) && last.texts.back().color == 0xffc18040);
        EXPECT_EQ(last.texts.size() > 4 ? last.texts[3].text.toInt() : 0, lastPageFirstRow);
    }
}

} // namespace
