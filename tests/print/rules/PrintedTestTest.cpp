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
    std::vector<RecordingSurface> pages() const
    {
        const auto layout = PrintedTest::layOut(source, choice, printer, 1);
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
    EXPECT_EQ(first.mid(0, 3).join(' '), "zwei 8=one 8 zwei 55=one 55 zwei 49=one 49") << "the same on every machine";
    EXPECT_EQ(QSet<QString>(first.begin(), first.end()).size(), 30);
    choice = {.number = 2};
    const QStringList sorted = items();
    EXPECT_FALSE(sorted == inOrder || sorted.mid(0, 30) == first);
    EXPECT_EQ(QSet<QString>(sorted.begin(), sorted.end()), QSet<QString>(inOrder.begin(), inOrder.end()));
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

TEST_F(PrintedTestTest, HasEverythingInItsPlace)
{
    const QSize upright(11900, 6500), sideways(6500, 11900);
    const TestChoice cards{.kind = TestChoice::Cards, .shuffled = false};
    const std::tuple<TestChoice, QSize, bool, const char *> cases[] = {
        {{.shuffled = false, .columns = 2}, upright, false, "sheet"},
        {{.asked = TestChoice::SecondLanguage, .number = 7, .nameAndDate = false, .key = false},
         upright,
         false,
         "turned_sheet"},
        // A back stands where its front is, over whichever edge the sheet is turned.
        {cards, upright, false, "cards"},
        {cards, upright, true, "cards_over_the_short_edge"},
        {cards, sideways, false, "cards_sideways"},
        {cards, sideways, true, "cards_sideways_over_the_short_edge"}};
    source = sourceOf({{"a", "1"}, {QString("long ").repeated(9), "שלום"}, {"c", QString("word ").repeated(12)}});
    for (const auto &[chosen, size, shortEdge, name] : cases) {
        std::tie(choice, printer.size, printer.shortEdge) = std::tie(chosen, size, shortEdge);
        std::string drawn;
        for (const RecordingSurface &page : pages())
            drawn += (drawn.empty() ? "" : "\n") + page.described();
        EXPECT_EQ(drawn, drawnAs(name));
    }
}

} // namespace
