#include "print/rules/PrintRun.h"
#include "print/rules/modUtskrift.h"
#include "support/RecordingPrinter.h"

namespace {

// With 100 twips a letter: column 1 begins at 1750 and words end at 6700 - 800 = 5900; column 2 begins at 6700 and
// words end at 11900 - 800 = 11100. The first row stands at 2230, rows follow each 250.
constexpr int FirstRowTop = 2230;
constexpr int LineHeight = 250;
constexpr int Column1Left = 1750;
constexpr int Column2Left = 6700;

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
        RecordingSurface surface;
        layout(zoom).drawPage(number, surface);
        return surface;
    }
};

void expectAt(const RecordingSurface &surface, const QString &text, int x, int y)
{
    const DrawnText *drawn = surface.find(text);
    ASSERT_TRUE(drawn) << text.toStdString();
    EXPECT_EQ(std::pair(drawn->x, drawn->y), std::pair(x, y)) << text.toStdString();
}

TEST_F(PageLayout, PutsEverythingInItsPlace)
{
    constexpr int red = 0x0000ff, ofWindows = int(0x80000008u);
    const std::tuple<std::vector<std::pair<QString, QString>>, int, const char *> cases[] = {
        {{{"house", "Haus"}, {"dog", {}}},
         red,
         "1500,1000 10 Glosaria - Words | 1750,1740 10*  English | 6700,1740 10*  German | 1400,2230 10 1 | "
         "1750,2230 10# house | 6700,2230 10# Haus | 1400,2480 10 2 | 1750,2480 10# dog | 5950,14840 10# 1"},
        {{{"peace שלום", "שלום New York"}, {word(30, u'א') + ' ' + word(12, u'ב'), word(60, u'ש')}},
         ofWindows,
         "1500,1000 10 Glosaria - Words | 1750,1740 10*  English | 11100,1740 10*< עברית | 1400,2230 10 1 | "
         "1750,2230 10 peace שלום | 11100,2230 10<שלום New York | 1400,2480 10 2 | "
         "5900,2480 10<אאאאאאאאאאאאאאאאאאאאאאאאאאאאאא | 5900,2730 10<בבבבבבבבבבבב | "
         "12700,2730 10<שששששששששששששששששששששששששששששששששששששששששששששששששששששששששששש | 5950,14840 10 1"},
        // The last row is the last with a first word.
        {{{"a", {}}, {{}, {}}, {"b", {}}, {{}, "lost"}},
         0,
         "1500,1000 10 Glosaria - Words | 1750,1740 10*  English | 6700,1740 10*  German | 1400,2230 10 1 | "
         "1750,2230 10 a | 1400,2480 10 2 | 1400,2730 10 3 | 1750,2730 10 b | 5950,14840 10 1"},
    };
    for (const auto &[pairs, color, expected] : cases) {
        source = sourceOf(pairs);
        source.ForeColor = color;
        source.second[0] = color == ofWindows ? "עברית" : "German";
        EXPECT_EQ(page(0).described(), expected);
    }
    source = sourceOf(12);
    EXPECT_EQ(page(0).find("12")->x, 1300) << "numbers end at one edge";
}

TEST_F(PageLayout, WrapsWordsWithinTheirColumn)
{
    const QString han = word(50, QChar(0x6f22));
    // The first column takes 41 letters up to its gap.
    const std::pair<QString, QStringList> cases[] = {
        {word(20) + ' ' + word(20), {word(20) + ' ' + word(20)}},
        {word(20) + ' ' + word(21), {word(20), word(21)}},
        {word(10) + "  " + word(29), {word(10) + "  " + word(29)}},
        {word(10) + "  " + word(30), {word(10), word(30)}}, // two blanks are two
        {word(41), {word(41)}},
        {word(42), {{}, word(42)}}, // runs over, but begins a line of its own
        {word(30) + ' ' + word(31) + ' ' + word(32), {word(30), word(31), word(32)}},
        {"a " + han, {"a " + han.left(39), han.left(11)}}, // written without blanks
    };
    for (const auto &[text, lines] : cases) {
        source = sourceOf({{text, "short"}, {"next", word(30) + ' ' + word(33)}, {"last", {}}});
        const RecordingSurface sheet = page(0);
        int y = FirstRowTop;
        for (const QString &line : lines) {
            if (!line.isEmpty())
                expectAt(sheet, line, Column1Left, y);
            y += LineHeight;
        }
        expectAt(sheet, "short", Column2Left, FirstRowTop);
        expectAt(sheet, "next", Column1Left, y);
        expectAt(sheet, word(33), Column2Left, y + LineHeight);
        expectAt(sheet, "last", Column1Left, y + 2 * LineHeight);
    }
}

TEST_F(PageLayout, BreaksThePageAfterTheRowThatFillsIt)
{
    const std::tuple<int, int, int> cases[] = {{48, 1, 1}, {49, 2, 0},  {50, 2, 50},
                                               {98, 3, 0}, {99, 3, 99}, {100000, 2041, 99961}};
    for (const auto &[rows, pages, lastPageFirstRow] : cases) {
        source = sourceOf(rows);
        source.ForeColor = 0x0000ff;
        ASSERT_EQ(layout().pageCount(), pages) << rows;
        const RecordingSurface last = page(pages - 1);
        EXPECT_EQ(last.texts.back().text, QString::number(pages));
        EXPECT_TRUE(last.texts.back().color == 0xffff0000 && !last.texts.back().font.Bold);
        if (lastPageFirstRow)
            EXPECT_EQ(last.texts[3].text, QString::number(lastPageFirstRow));
        else
            EXPECT_EQ(last.texts.size(), 4U) << "the last row filled its page";
    }
}

TEST_F(PageLayout, AZoomedPageBreaksWhereThePrintedOneDoes)
{
    source = sourceOf(60);
    source.first[4] = word(20) + ' ' + word(21) + ' ' + word(9);
    const RecordingSurface printed = page(0);
    for (const double zoom : {2.0, 3.0}) {
        EXPECT_EQ(layout(zoom).pageWidth(), qRound(11900 / zoom));
        RecordingSurface divided = printed;
        for (DrawnText &text : divided.texts)
            std::tie(text.x, text.y, text.font.Size) =
                std::tuple(qRound(text.x / zoom), qRound(text.y / zoom), int(10 / zoom));
        EXPECT_EQ(page(0, zoom).described(), divided.described());
    }
}

TEST_F(PageLayout, ARunPrintsTheChosenPagesAsOneJob)
{
    // from, to, listed by the printer's dialog, last page first, copies, collated
    const std::tuple<PageChoice, QList<int>, bool, std::vector<int>> cases[] = {
        {{0, 0, 1, true}, {}, false, {1, 2, 3, 4, 5}},
        {{4, 9, 1, true}, {}, false, {4, 5}},
        {{2, 5, 1, true}, {2, 5, 9}, false, {2, 5}},
        {{1, 3, 1, true}, {}, true, {3, 2, 1}},
        {{1, 2, 2, true}, {}, false, {1, 2, 1, 2}},
        {{1, 2, 2, false}, {}, false, {1, 1, 2, 2}},
        {{6, 9, 1, true}, {}, false, {}},
    };
    source = sourceOf(4 * 49 + 10);
    for (const auto &[choice, listed, reverse, numbers] : cases) {
        printer = {};
        printer.wanted = listed;
        printer.reverse = reverse;
        std::vector<int> told;
        try {
            PrintRun run(source, printer, choice);
            for (; !run.finished(); run.printSheet())
                told.push_back(run.page());
            run.end();
        } catch (const PrinterError &error) {
            EXPECT_EQ(error.text(), "None of these pages exists. The last page is 5.");
        }
        EXPECT_TRUE(printer.pageNumbers() == numbers && told == numbers);
        EXPECT_EQ(printer.jobs, numbers.empty() ? 0 : 1);
    }
}

} // namespace
