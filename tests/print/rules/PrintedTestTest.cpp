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
    const std::pair<TestChoice, std::vector<std::string>> cases[] = {
        {{.shuffled = false, .columns = 2},
         {"1000,1000 14* Words | 1000,1240 10 English - German | 1000,2060 10 Name: | 7600,2060 10 Date: | "
          "1000,2880 10 1. | 1350,2880 10 a | 1000,3475 10 2. | 1350,3475 10 long long long | "
          "1350,3725 10 long long long | 1350,3975 10 long long long | 6200,2880 10 3. | 6550,2880 10 c | "
          "5900,5200 10 1 | 1650,2300 7100,2300 | 8250,2300 10900,2300 | 3265,3120 5700,3120 | 3265,3715 5700,3715 | "
          "8465,3120 10900,3120 | 8465,3640 10900,3640 | 8465,4160 10900,4160 | 8465,4680 10900,4680 | "
          "8465,5200 10900,5200",
          "1000,1000 14* Key: Words | 1000,1240 10 English - German | 1000,1790 10 1. | 1350,1790 10 a | "
          "3265,1790 10 1 | 1000,2120 10 2. | 1350,2120 10 long long long | 1350,2370 10 long long long | "
          "1350,2620 10 long long long | 5700,2120 10<שלום | 1000,2950 10 3. | 1350,2950 10 c | "
          "3265,2950 10 word word word word word | 3265,3200 10 word word word word word | 3265,3450 10 word word | "
          "5900,5200 10 2"}},
        {{.asked = TestChoice::SecondLanguage, .number = 7, .nameAndDate = false, .key = false},
         {"1000,1000 14* Words | 1000,1240 10 German - English | 1000,2060 10 1. | 5455,2060 10<שלום | "
          "1000,3100 10 2. | 1350,3100 10 word word word word word word word word | "
          "1350,3350 10 word word word word | 1000,3945 10 3. | 1350,3945 10 1 | 1000,5200 10 Sheet 7 | "
          "5900,5200 10 1 | 5605,2300 10900,2300 | 5605,2820 10900,2820 | 5605,3340 10900,3340 | "
          "5605,4185 10900,4185"}},
        {{.kind = TestChoice::Cards, .shuffled = false},
         {"3208,1117 24 a | 5569,1387 8# 1 | 6441,1117 24 long long long long long long long long long | "
          "10952,1387 8# 2 | 3208,2458 24 c | 5569,2728 8# 3 | 567,567 567,5930 | 5950,567 5950,5930 | "
          "11333,567 11333,5930 | 567,567 11332,567 | 567,1908 11332,1908 | 567,3249 11332,3249 | "
          "567,4590 11332,4590 | 567,5931 11332,5931",
          "3208,5140 24 1 | 5569,5410 8# 1 | 8841,5140 24<שלום | 10952,5410 8# 2 | "
          "1058,3679 24 word word word word word word word word word | 2558,3919 24 word word word | "
          "5569,4069 8# 3"}},
    };
    source = sourceOf({{"a", "1"}, {QString("long ").repeated(9), "שלום"}, {"c", QString("word ").repeated(12)}});
    printer.size = {11900, 6500};
    for (const auto &[chosen, expected] : cases) {
        choice = chosen;
        std::vector<std::string> drawn;
        for (const RecordingSurface &page : pages())
            drawn.push_back(page.described());
        EXPECT_EQ(drawn, expected);
    }
}

TEST_F(PrintedTestTest, ASheetHasEveryQuestionOnceAndAKeyBehindIt)
{
    source = sourceOf(100);
    for (const int columns : {1, 2}) {
        choice = {.number = 77, .columns = columns};
        QStringList texts;
        for (const RecordingSurface &page : pages()) {
            EXPECT_TRUE(page.find("Sheet 77"));
            for (const DrawnText &text : page.texts) {
                texts << text.text;
                EXPECT_TRUE(text.x >= 0 && text.x + 100 * text.text.size() < 11900 && text.y < 16840 - 1000);
            }
        }
        const QStringList key = texts.mid(texts.indexOf("Key: Words"));
        for (const TestItem &item : TestWords::items(source, choice)) {
            EXPECT_TRUE(texts.count(item.question) == 2 && texts.count(item.answer) == 1);
            EXPECT_EQ(key.indexOf(item.answer), key.indexOf(item.question) + 1) << "in the key only";
        }
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
        std::tie(printer.size, printer.shortEdge) = std::pair(size, shortEdge);
        const std::vector<RecordingSurface> drawn = pages();
        ASSERT_EQ(drawn.size(), 4u);
        const std::vector<TestItem> asked = TestWords::items(source, choice);
        for (size_t i = 0; i < asked.size(); ++i) {
            const DrawnText *front = drawn[i / 8 * 2].find(asked[i].question);
            const DrawnText *back = drawn[i / 8 * 2 + 1].find(asked[i].answer);
            ASSERT_TRUE(front && back);
            const auto middle = [](const DrawnText &text) { return text.x + 50 * int(text.text.size()); };
            EXPECT_NEAR(middle(*back), sideways ? size.width() - middle(*front) : middle(*front), 3);
            EXPECT_NEAR(back->y, sideways ? front->y : size.height() - front->y - 240, 3);
        }
    }
}

TEST_F(PrintedTestTest, AZoomIsOnlyAZoom)
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
    }
}

} // namespace
