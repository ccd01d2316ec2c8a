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
constexpr int FooterTop = 14840;

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

void expectAt(const RecordingSurface &surface, const QString &text, int x, int y, bool rightToLeft = false)
{
    const DrawnText *drawn = surface.find(text);
    ASSERT_TRUE(drawn) << text.toStdString();
    EXPECT_EQ(std::tuple(drawn->x, drawn->y, drawn->rightToLeft), std::tuple(x, y, rightToLeft)) << text.toStdString();
}

TEST_F(PageLayout, PutsTitleHeadingsRowsAndNumberInTheirPlaces)
{
    source = sourceOf({{"house", "Haus"}, {"dog", {}}});
    source.ForeColor = 0x0000ff; // red
    const RecordingSurface sheet = page(0);
    constexpr QRgb black = 0xff000000;
    constexpr QRgb red = 0xffff0000;
    const std::tuple<const char *, int, int, QRgb, bool> cases[] = {
        {"Glosaria - Words", 1500, 1000, black, false},
        {" English", 1750, 1740, black, true},
        {" German", 6700, 1740, black, true},
        {"1", 1400, 2230, black, false},
        {"house", 1750, 2230, red, false},
        {"Haus", 6700, 2230, red, false},
        {"2", 1400, 2480, black, false},
        {"dog", 1750, 2480, red, false},
        {"1", 5950, FooterTop, red, false},
    };
    ASSERT_EQ(sheet.texts.size(), std::size(cases));
    for (size_t i = 0; i < std::size(cases); ++i) {
        const DrawnText &drawn = sheet.texts[i];
        EXPECT_EQ(std::tuple(drawn.text, drawn.x, drawn.y, drawn.color, drawn.font.Bold), cases[i]) << i;
    }
}

TEST_F(PageLayout, RowNumbersEndAtOneEdgeAndSystemColoursAreBlack)
{
    source = sourceOf(12);
    source.ForeColor = int(0x80000008u);
    expectAt(page(0), "12", 1300, FirstRowTop + 11 * LineHeight);
    EXPECT_EQ(page(0).find("one 12")->color, 0xff000000);
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

TEST_F(PageLayout, RightToLeftTextsReadFromTheRightOfTheirColumn)
{
    const QString shalom = "שלום";
    source =
        sourceOf({{"peace " + shalom, shalom + " New York"}, {word(30, u'א') + ' ' + word(12, u'ב'), word(60, u'ש')}});
    source.second[0] = "עברית";
    const RecordingSurface sheet = page(0);
    expectAt(sheet, " עברית", 11100, 1740, true);
    expectAt(sheet, source.first[1], Column1Left, FirstRowTop);
    expectAt(sheet, source.second[1], 11100, FirstRowTop, true);
    expectAt(sheet, word(30, u'א'), 5900, FirstRowTop + LineHeight, true);
    expectAt(sheet, word(12, u'ב'), 5900, FirstRowTop + 2 * LineHeight, true);
    expectAt(sheet, word(60, u'ש'), Column2Left + 6000, FirstRowTop + 2 * LineHeight, true); // runs over
}

TEST_F(PageLayout, EndsWithTheLastRowThatHasAFirstWord)
{
    source = sourceOf({{"a", {}}, {{}, {}}, {"b", {}}, {{}, "lost"}});
    const RecordingSurface sheet = page(0);
    expectAt(sheet, "2", 1400, FirstRowTop + LineHeight); // an empty row before it keeps its number
    expectAt(sheet, "b", Column1Left, FirstRowTop + 2 * LineHeight);
    EXPECT_FALSE(sheet.find("lost"));
    source = sourceOf({{{}, "lost"}});
    EXPECT_EQ(page(0).texts.size(), 4U) << "title, headings and number";
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
        const RecordingSurface shown = page(0, zoom);
        EXPECT_EQ(layout(zoom).pageWidth(), qRound(11900 / zoom));
        ASSERT_EQ(shown.texts.size(), printed.texts.size());
        for (size_t i = 0; i < shown.texts.size(); ++i) {
            EXPECT_EQ(shown.texts[i].text, printed.texts[i].text);
            EXPECT_EQ(shown.texts[i].x, qRound(printed.texts[i].x / zoom));
            EXPECT_EQ(shown.texts[i].y, qRound(printed.texts[i].y / zoom));
            EXPECT_EQ(shown.texts[i].font.Size, int(10 / zoom));
        }
    }
}

TEST_F(PageLayout, ARunPrintsTheChosenPagesAsOneJob)
{
    // from, to, listed by the printer's dialog, last page first, copies, collated
    const std::tuple<PageChoice, QList<int>, bool, std::vector<int>> cases[] = {
        {{0, 0, 1, true}, {}, false, {1, 2, 3, 4, 5}},
        {{3, 4, 1, true}, {}, false, {3, 4}},
        {{4, 9, 1, true}, {}, false, {4, 5}},
        {{2, 5, 1, true}, {2, 5, 9}, false, {2, 5}},
        {{1, 3, 1, true}, {}, true, {3, 2, 1}},
        {{1, 2, 2, true}, {}, false, {1, 2, 1, 2}},
        {{1, 2, 2, false}, {}, false, {1, 1, 2, 2}},
        {{0, 0, 1, true}, {6}, false, {}},
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
        EXPECT_EQ(printer.pageNumbers(), numbers);
        EXPECT_EQ(told, numbers);
        EXPECT_EQ(printer.jobs, numbers.empty() ? 0 : 1);
        EXPECT_EQ(printer.killed, 0);
    }
}

} // namespace
