#include "print/rules/TestLayout.h"
#include "support/RecordingPrinter.h"

namespace {

struct PrintedTestTest : ::testing::Test
{
    std::vector<RecordingSurface> pages() const
    {
        const auto layout = PrintedTest::layOut(source, choice, printer, 1);
        std::vector<RecordingSurface> pages(size_t(layout->pageCount()), usedSurface());
        for (size_t i = 0; i < pages.size(); ++i)
            layout->drawPage(int(i), pages[i]);
        return pages;
    }

    RecordingPrinter printer;
    PrintSource source = sourceOf(
        {{"a", "1"}, {" ", "2"}, {"c ", "3"}, {"d", ""}, {"e", "5"}, {"f", " 6"}, {"g", "7"}, {"h", "8"}, {"i", "9"}});
    TestChoice choice{.shuffled = false};
};

TEST_F(PrintedTestTest, AsksTheChosenWordsInAnOrderThatANumberGivesAgain)
{
    std::string seen;
    for (const auto asked : {TestChoice::FirstLanguage, TestChoice::SecondLanguage, TestChoice::Mixed}) {
        for (const auto &[count, number] : {std::pair(0, 0), {2, 0}, {9, 0}, {0, 1}, {2, 2}, {9, 3}}) {
            choice = {.asked = asked, .count = count, .shuffled = number > 0, .number = number};
            for (const TestItem &item : TestWords::items(source, choice))
                seen += item.question.toStdString() + '=' + item.answer.toStdString() + ' ';
            seen += '\n';
        }
    }
    EXPECT_EQ(seen, drawnAs("asked_words")) << "the same on every machine";
    EXPECT_EQ(TestWords::count(source), 7);
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
    source = sourceOf({{"a", "1"},
                       {QString("long ").repeated(9), "שלום"},
                       {"c", QString("word ").repeated(12)},
                       {"d", "4"},
                       {"e", "5"},
                       {"f", "6"},
                       {"g", "7"},
                       {"h", "8"},
                       {"i", "9"},
                       {"j", QString("high ").repeated(100)},
                       {"k", "11"}});
    for (const auto &[chosen, size, shortEdge, name] : cases) {
        std::tie(choice, printer.size, printer.shortEdge) = std::tie(chosen, size, shortEdge);
        EXPECT_EQ(PrintedTest::layOut(source, choice, printer, 1)->PageTitle(),
                  chosen.kind == TestChoice::Cards ? "Glosaria - Words - flash cards" : "Glosaria - Words - test");
        std::string seen;
        for (const RecordingSurface &page : pages())
            seen += (seen.empty() ? "" : "\n") + page.described();
        EXPECT_EQ(seen, drawnAs(name));
    }
}

} // namespace
