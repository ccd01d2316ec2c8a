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

QString word(int letters)
{
    return QString(letters, u'x');
}

class PageLayout : public ::testing::Test
{
protected:
    RecordingPrinter printer;
    PairSource source;
    std::vector<int> started;
    modUtskrift layout{printer, [this](int page) { started.push_back(page); }};

    RecordingSurface page(int number, double zoom = 1.0)
    {
        layout.PrintLayout(modUtskrift::PreviewMode, source);
        layout.ZoomDivisor = zoom;
        RecordingSurface surface;
        layout.drawPage(number, surface);
        return surface;
    }
};

void expectAt(const RecordingSurface &surface, const QString &text, int x, int y)
{
    const DrawnText *drawn = surface.find(text);
    ASSERT_TRUE(drawn) << text.toStdString();
    EXPECT_EQ(drawn->x, x) << text.toStdString();
    EXPECT_EQ(drawn->y, y) << text.toStdString();
}

TEST_F(PageLayout, PutsTitleHeadingsRowsAndNumberInTheirPlaces)
{
    source.pairs = {{QStringLiteral("house"), QStringLiteral("Haus")}, {QStringLiteral("dog"), {}}};
    source.color = 0x0000ff; // red
    const RecordingSurface sheet = page(0);
    const struct
    {
        const char *text;
        int x;
        int y;
        QRgb color;
        bool bold;
    } cases[] = {
        {"Glosaria - Words", 1500, 1000, 0xff000000, false},
        {" English", 1750, 1740, 0xff000000, true},
        {" German", 6700, 1740, 0xff000000, true},
        {"1", 1400, 2230, 0xff000000, false},
        {"house", 1750, 2230, 0xffff0000, false},
        {"Haus", 6700, 2230, 0xffff0000, false},
        {"2", 1400, 2480, 0xff000000, false},
        {"dog", 1750, 2480, 0xffff0000, false},
        {"1", 5950, FooterTop, 0xffff0000, false},
    };
    ASSERT_EQ(sheet.texts.size(), std::size(cases));
    for (size_t i = 0; i < std::size(cases); ++i) {
        const DrawnText &drawn = sheet.texts[i];
        EXPECT_EQ(drawn.text.toStdString(), cases[i].text);
        EXPECT_EQ(drawn.x, cases[i].x) << cases[i].text;
        EXPECT_EQ(drawn.y, cases[i].y) << cases[i].text;
        EXPECT_EQ(drawn.color, cases[i].color) << cases[i].text;
        EXPECT_EQ(drawn.font.Bold, cases[i].bold) << cases[i].text;
    }
}

TEST_F(PageLayout, RowNumbersEndAtOneEdgeAndSystemColoursAreBlack)
{
    source.fill(12);
    source.color = int(0x80000008u);
    const RecordingSurface sheet = page(0);
    expectAt(sheet, QStringLiteral("12"), 1300, FirstRowTop + 11 * LineHeight);
    EXPECT_EQ(sheet.find(QStringLiteral("one 12"))->color, 0xff000000);
}

TEST_F(PageLayout, WrapsWordsWithinTheirColumn)
{
    // A column takes 41 letters up to its gap.
    const struct
    {
        QString text;
        QStringList lines;
    } cases[] = {
        {word(20) + u' ' + word(20), {word(20) + u' ' + word(20)}},
        {word(20) + u' ' + word(21), {word(20), word(21)}},
        {word(10) + QStringLiteral("  ") + word(29), {word(10) + QStringLiteral("  ") + word(29)}},
        {word(10) + QStringLiteral("  ") + word(30), {word(10), word(30)}}, // two blanks are two
        {word(41), {word(41)}},
        {word(42), {QString(), word(42)}}, // runs over, but begins a line of its own
        {word(30) + u' ' + word(30) + u' ' + word(30), {word(30), word(30), word(30)}},
    };
    for (const auto &c : cases) {
        source.pairs = {{c.text, QStringLiteral("short")}, {QStringLiteral("next"), {}}};
        const RecordingSurface sheet = page(0);
        for (qsizetype i = 0; i < c.lines.size(); ++i) {
            const QString expected =
                i ? c.lines[i]
                  : QStringList({QStringLiteral("1"), c.lines[i], QStringLiteral("short")}).join(u' ').simplified();
            EXPECT_EQ(sheet.line(FirstRowTop + int(i) * LineHeight).simplified(), expected);
        }
        expectAt(sheet, QStringLiteral("next"), Column1Left, FirstRowTop + int(c.lines.size()) * LineHeight);
    }
}

TEST_F(PageLayout, TheLongerColumnSetsTheNextRowAndContinuationsBeginAtTheColumn)
{
    const QString three = word(30) + u' ' + word(31) + u' ' + word(32);
    const QString two = word(33) + u' ' + word(34);
    source.pairs = {{two, three}, {three, two}, {QStringLiteral("next"), {}}};
    const RecordingSurface sheet = page(0);
    expectAt(sheet, word(33), Column1Left, FirstRowTop);
    expectAt(sheet, word(34), Column1Left, FirstRowTop + LineHeight);
    expectAt(sheet, word(30), Column2Left, FirstRowTop);
    expectAt(sheet, word(32), Column2Left, FirstRowTop + 2 * LineHeight);
    expectAt(sheet, QStringLiteral("next"), Column1Left, FirstRowTop + 6 * LineHeight);
}

TEST_F(PageLayout, EndsWithTheLastRowThatHasAFirstWord)
{
    source.pairs = {{QStringLiteral("a"), {}}, {{}, {}}, {QStringLiteral("b"), {}}, {{}, QStringLiteral("lost")}};
    const RecordingSurface sheet = page(0);
    EXPECT_EQ(sheet.line(FirstRowTop + LineHeight), QStringLiteral("2")) << "an empty row before it keeps its number";
    EXPECT_EQ(sheet.line(FirstRowTop + 2 * LineHeight), QStringLiteral("3 b"));
    EXPECT_FALSE(sheet.find(QStringLiteral("lost")));
}

TEST_F(PageLayout, AVocabularyWithoutWordsHasOnePage)
{
    source.pairs = {{{}, QStringLiteral("lost")}};
    const RecordingSurface sheet = page(0);
    EXPECT_EQ(layout.PageIndex(), 0);
    EXPECT_EQ(sheet.texts.size(), 4U);
    expectAt(sheet, QStringLiteral("1"), 5950, FooterTop);
}

TEST_F(PageLayout, BreaksThePageAfterTheRowThatFillsIt)
{
    const struct
    {
        int rows;
        int pages;
        int lastPageFirstRow;
    } cases[] = {{48, 1, 1}, {49, 2, 0}, {50, 2, 50}, {98, 3, 0}, {99, 3, 99}};
    for (const auto &c : cases) {
        source.fill(c.rows);
        layout.PrintLayout(modUtskrift::PreviewMode, source);
        ASSERT_EQ(layout.pageCount(), c.pages) << c.rows;
        const RecordingSurface last = page(c.pages - 1);
        EXPECT_EQ(last.line(FirstRowTop).section(u' ', 0, 0).toInt(), c.lastPageFirstRow) << c.rows;
        EXPECT_EQ(last.line(FooterTop).toInt(), c.pages);
    }
}

TEST_F(PageLayout, LongListsAreCountedWhole)
{
    source.fill(100000);
    layout.PrintLayout(modUtskrift::PreviewMode, source);
    EXPECT_EQ(layout.pageCount(), 100000 / 49 + 1);
    EXPECT_TRUE(page(layout.PageIndex()).find(QStringLiteral("100000")));
}

TEST_F(PageLayout, AZoomedPageBreaksWhereThePrintedOneDoes)
{
    source.fill(60);
    source.pairs[3].first = word(20) + u' ' + word(21) + u' ' + word(9);
    const RecordingSurface printed = page(0);
    const int pages = layout.pageCount();
    for (const double zoom : {2.0, 3.0}) {
        const RecordingSurface shown = page(0, zoom);
        EXPECT_EQ(layout.pageCount(), pages);
        ASSERT_EQ(shown.texts.size(), printed.texts.size());
        for (size_t i = 0; i < shown.texts.size(); ++i) {
            EXPECT_EQ(shown.texts[i].text, printed.texts[i].text);
            EXPECT_EQ(shown.texts[i].x, qRound(printed.texts[i].x / zoom));
            EXPECT_EQ(shown.texts[i].y, qRound(printed.texts[i].y / zoom));
            EXPECT_EQ(shown.texts[i].font.Size, int(10 / zoom));
        }
        EXPECT_EQ(layout.pageWidth(), qRound(11900 / zoom));
    }
}

TEST_F(PageLayout, PrintsTheChosenPages)
{
    struct Case
    {
        int from;
        int to;
        QList<int> listed;
        bool reverse;
        int copiesOfPage;
        std::vector<int> numbers;
    };
    const Case cases[] = {
        {0, 0, {}, false, 1, {1, 2, 3, 4, 5}}, {3, 4, {}, false, 1, {3, 4}},     {1, 1, {}, false, 1, {1}},
        {4, 9, {}, false, 1, {4, 5}},          {2, 5, {2, 5}, false, 1, {2, 5}}, {1, 3, {}, true, 1, {3, 2, 1}},
        {1, 2, {}, false, 2, {1, 1, 2, 2}},
    };
    source.fill(4 * 49 + 10);
    for (const Case &c : cases) {
        printer.sheets.clear();
        started.clear();
        layout.FromPage = c.from;
        layout.ToPage = c.to;
        layout.CopiesOfPage = c.copiesOfPage;
        printer.wanted = c.listed;
        printer.reverse = c.reverse;
        layout.PrintLayout(modUtskrift::PrintMode, source);
        EXPECT_EQ(printer.pageNumbers(), c.numbers);
        EXPECT_EQ(started, c.numbers);
        EXPECT_EQ(layout.PageIndex(), 4);
    }
}

TEST_F(PageLayout, APrinterThatFailsEndsTheRun)
{
    source.fill(200);
    printer.failingSheet = 3;
    EXPECT_THROW(layout.PrintLayout(modUtskrift::PrintMode, source), PrinterError);
    EXPECT_EQ(printer.sheets.size(), 2U);
}

TEST_F(PageLayout, RightToLeftTextsReadFromTheRightOfTheirColumn)
{
    const QString shalom = QStringLiteral("שלום");
    source.language2 = QStringLiteral("עברית");
    source.pairs = {{QStringLiteral("peace ") + shalom, shalom + QStringLiteral(" New York")},
                    {QString(30, u'א') + u' ' + QString(12, u'ב'), QString(60, u'ש')}};
    const RecordingSurface sheet = page(0);
    const struct
    {
        QString text;
        int x; // where the line begins: at the right when it reads from there
        int y;
        bool rightToLeft;
    } cases[] = {
        {u' ' + source.language2, 11100, 1740, true},
        {source.pairs[0].first, Column1Left, FirstRowTop, false},
        {source.pairs[0].second, 11100, FirstRowTop, true},
        {QString(30, u'א'), 5900, FirstRowTop + LineHeight, true},
        {QString(12, u'ב'), 5900, FirstRowTop + 2 * LineHeight, true},
        {source.pairs[1].second, Column2Left + 6000, FirstRowTop + 2 * LineHeight, true},
    };
    for (const auto &c : cases) {
        expectAt(sheet, c.text, c.x, c.y);
        EXPECT_EQ(sheet.find(c.text)->rightToLeft, c.rightToLeft);
    }
}

TEST_F(PageLayout, ScriptsWithoutBlanksBreakWithinAWordThatIsTooWide)
{
    const QChar han(0x6f22);
    source.pairs = {{QStringLiteral("a ") + QString(50, han), QString(44, han)}, {QString(41, han), {}}};
    const RecordingSurface sheet = page(0);
    expectAt(sheet, QStringLiteral("a ") + QString(39, han), Column1Left, FirstRowTop);
    expectAt(sheet, QString(11, han), Column1Left, FirstRowTop + LineHeight);
    expectAt(sheet, QString(44, han), Column2Left, FirstRowTop);
    expectAt(sheet, QString(41, han), Column1Left, FirstRowTop + 2 * LineHeight);
}

} // namespace
