#include "print/rules/ColumnFlow.h"
#include "print/rules/TestLayout.h"
#include "support/RecordingPrinter.h"

namespace {

struct PrintedTestTest : ::testing::Test
{
    /// "question=answer" of each item.
    QStringList items() const
    {
        QStringList list;
        for (const TestItem &item : TestWords::items(source, choice))
            list << item.question + u'=' + item.answer;
        return list;
    }
    std::vector<RecordingSurface> pages(double zoom = 1.0) const
    {
        const auto layout = PrintedTest::layOut(source, choice, printer, zoom);
        std::vector<RecordingSurface> pages(size_t(layout->pageCount()));
        for (size_t i = 0; i < pages.size(); ++i)
            layout->drawPage(int(i), pages[i]);
        return pages;
    }

    RecordingPrinter printer;
    PrintSource source = sourceOf({{"a", "1"}, {" ", "2"}, {"c ", "3"}, {"d", ""}, {"e", "5"}});
    TestChoice choice{.shuffled = false};
};

TEST_F(PrintedTestTest, AsksTheChosenWords)
{
    const std::tuple<TestChoice::Asked, int, const char *> cases[] = {
        {TestChoice::FirstLanguage, 0, "a=1 c=3 e=5"},
        {TestChoice::FirstLanguage, 2, "a=1 c=3"},
        {TestChoice::SecondLanguage, 9, "1=a 3=c 5=e"},
        {TestChoice::Mixed, 0, "1=a c=3 5=e"},
    };
    for (const auto &[asked, count, expected] : cases) {
        choice.asked = asked;
        choice.count = count;
        EXPECT_EQ(items().join(u' '), expected);
    }
}

TEST_F(PrintedTestTest, ANumberShufflesInOneWay)
{
    source = sourceOf(100);
    const QStringList inOrder = items();
    choice = {.asked = TestChoice::Mixed, .count = 30};
    const QStringList first = items();
    EXPECT_EQ(items(), first);
    EXPECT_EQ(first.mid(0, 3), (QStringList{"zwei 8=one 8", "zwei 55=one 55", "zwei 49=one 49"}))
        << "the same on every machine";
    choice.number = 2;
    EXPECT_NE(items(), first);
    EXPECT_EQ(QSet<QString>(first.begin(), first.end()).size(), 30);
    choice = {.asked = TestChoice::FirstLanguage};
    QStringList sorted = items();
    EXPECT_NE(sorted, inOrder);
    std::sort(sorted.begin(), sorted.end());
    QStringList all = inOrder;
    std::sort(all.begin(), all.end());
    EXPECT_EQ(sorted, all);
}

TEST(ColumnFlow, FillsColumnsThenPages)
{
    ColumnFlow flow({2, 300, 100, 500});
    const std::pair<int, ColumnFlow::Place> blocks[] = {
        {200, {0, 0, 300}}, {100, {0, 1, 300}}, {100, {0, 1, 400}}, {1, {1, 0, 100}},
        {900, {1, 1, 100}}, {10, {2, 0, 100}},  {900, {2, 1, 100}}, {900, {3, 0, 100}},
    };
    for (const auto &[height, place] : blocks)
        EXPECT_EQ(flow.add(height), place) << height;
    EXPECT_EQ(flow.pageCount(), 4);
}

TEST_F(PrintedTestTest, ASheetHasEveryQuestionOnceWithALineAndAKeyBehindIt)
{
    source = sourceOf(100);
    for (const int columns : {1, 2}) {
        choice = {.number = 77, .columns = columns};
        const std::vector<TestItem> asked = TestWords::items(source, choice);
        const std::vector<RecordingSurface> drawn = pages();
        int questions = 0;
        int answers = 0;
        int lines = 0;
        bool isKey = false;
        for (const RecordingSurface &page : drawn) {
            isKey = isKey || page.find("Key: Words");
            EXPECT_TRUE(page.find("Sheet 77"));
            for (const TestItem &item : asked) {
                const DrawnText *question = page.find(item.question);
                const DrawnText *answer = page.find(item.answer);
                questions += question && !isKey;
                answers += bool(answer);
                EXPECT_EQ(question && isKey, bool(answer)) << "answers stand in the key only, beside their questions";
                EXPECT_TRUE(!answer || answer->y == question->y);
            }
            for (const DrawnText &text : page.texts)
                EXPECT_TRUE(text.x >= 0 && text.x + 100 * text.text.size() < 11900 && text.y < 16840 - 1000);
            lines += int(page.lines.size());
        }
        EXPECT_EQ(std::tuple(questions, answers, lines), std::tuple(100, 100, 102));
        choice.key = choice.nameAndDate = false;
        EXPECT_LT(pages().size(), drawn.size());
    }
}

TEST_F(PrintedTestTest, ABackStandsWhereItsFrontIs)
{
    source = sourceOf(13);
    const std::tuple<QSize, bool, bool> cases[] = {
        {{11900, 16840}, false, true},
        {{11900, 16840}, true, false},
        {{16840, 11900}, false, false},
        {{16840, 11900}, true, true},
    };
    for (const auto &[size, shortEdge, sideways] : cases) {
        choice = {.kind = TestChoice::Cards};
        printer.size = size;
        printer.shortEdge = shortEdge;
        const std::vector<RecordingSurface> drawn = pages();
        ASSERT_EQ(drawn.size(), 4u);
        QStringList cuts;
        for (const QLine &cut : drawn[0].lines)
            cuts += cut.dx() ? QString("y%1:%2-%3").arg(cut.y1()).arg(cut.x1()).arg(cut.x2())
                             : QString("x%1:%2-%3").arg(cut.x1()).arg(cut.y1()).arg(cut.y2());
        EXPECT_EQ(cuts.join(' ').toStdString(),
                  size.width() < size.height() ? "x567:567-16270 x5950:567-16270 x11333:567-16270 y567:567-11332 "
                                                 "y4493:567-11332 y8419:567-11332 y12345:567-11332 y16271:567-11332"
                                               : "x567:567-11330 x8420:567-11330 x16273:567-11330 y567:567-16272 "
                                                 "y3258:567-16272 y5949:567-16272 y8640:567-16272 y11331:567-16272")
            << "eight cards within a centimetre from the edge";
        std::set<std::pair<int, int>> places;
        for (size_t i = 0; i < 8; ++i) {
            const DrawnText *front = drawn[0].find(TestWords::items(source, choice)[i].question);
            places.emplace((front->x + 50 * int(front->text.size())) * 2 / size.width(), front->y * 4 / size.height());
        }
        EXPECT_EQ(places.size(), 8u) << "two columns of four rows";
        const std::vector<TestItem> asked = TestWords::items(source, choice);
        for (size_t i = 0; i < asked.size(); ++i) {
            const DrawnText *front = drawn[i / 8 * 2].find(asked[i].question);
            const DrawnText *back = drawn[i / 8 * 2 + 1].find(asked[i].answer);
            ASSERT_TRUE(front && back);
            const auto middle = [](const DrawnText &text) { return text.x + 50 * int(text.text.size()); };
            const int turned = sideways ? size.width() - middle(*front) : middle(*front);
            EXPECT_NEAR(middle(*back), turned, 3);
            EXPECT_NEAR(back->y, sideways ? front->y : size.height() - front->y - 240, 3);
        }
    }
}

TEST_F(PrintedTestTest, LongWordsGetRoomAndAZoomIsOnlyAZoom)
{
    source = sourceOf({{"a b", QString("word ").repeated(60)}, {QString("long ").repeated(40), "b"}});
    for (const auto kind : {TestChoice::Sheet, TestChoice::Cards}) {
        choice.kind = kind;
        const std::vector<RecordingSurface> whole = pages();
        const std::vector<RecordingSurface> half = pages(2.0);
        ASSERT_EQ(whole.size(), half.size());
        for (size_t page = 0; page < whole.size(); ++page) {
            ASSERT_EQ(whole[page].texts.size(), half[page].texts.size());
            for (size_t i = 0; i < whole[page].texts.size(); ++i)
                EXPECT_NEAR(whole[page].texts[i].x, 2 * half[page].texts[i].x, 1);
        }
        const size_t lines = kind == TestChoice::Sheet ? 2 + 6 + 1 : 3 + 5; // name, date, answers; or to cut along
        EXPECT_EQ(whole[0].lines.size(), lines);
    }
}

} // namespace
