#include "services/rules/SortOrder.h"

namespace {

const QLocale German(QLocale::German, QLocale::Germany);
const QLocale Swedish(QLocale::Swedish, QLocale::Sweden);

using Row = std::array<QString, 2>;

std::vector<int> sortedRows(const std::vector<Row> &words, const SortOrder::Request &request)
{
    return SortOrder::sortedRows([&](int row, int col) { return words[size_t(row - 1)][size_t(col - 1)]; }, request);
}

/// The texts of column 1 in sorted order, joined by bars.
QString sortedTexts(const QStringList &texts, bool descending, const QLocale &locale = German)
{
    std::vector<Row> words;
    for (const QString &text : texts)
        words.push_back({text, QString()});
    QStringList result;
    for (const int row : sortedRows(words, {1, int(texts.size()), {1}, descending, locale}))
        result << texts[row - 1];
    return result.join(u'|');
}

TEST(SortOrder, OrdersNumbersThenWordsThenEmptyCells)
{
    struct Case
    {
        QString texts, ascending, descending;
        QLocale locale;
    };
    const Case cases[] = {
        {"b||10|a|9|", "9|10|a|b||", "b|a|10|9||", German},
        {"1.5|-2|+1|1|1.50|0|-0", "-2|0|-0|+1|1|1.5|1.50", "1.5|1.50|+1|1|0|-0|-2", German},
        {"100000000000000000000001|100000000000000000000000|5.", "5.|100000000000000000000000|100000000000000000000001",
         "100000000000000000000001|100000000000000000000000|5.", German},
        {"1a|.|-|2|1.2.3", "2|-|.|1.2.3|1a", "1a|1.2.3|.|-|2", German},
        {"b|B|a|A|ab|Aa", "a|A|Aa|ab|b|B", "B|b|ab|Aa|A|a", German},
        {"zebra|Österreich|Ofen|Oslo", "Ofen|Oslo|Österreich|zebra", "zebra|Österreich|Oslo|Ofen", German},
        {"zebra|Österreich|Ofen|Oslo", "Ofen|Oslo|zebra|Österreich", "Österreich|zebra|Oslo|Ofen", Swedish},
        {"b|B|a|é|e|f", "a|b|B|e|é|f", "f|é|e|B|b|a", QLocale::c()},
        {"яблоко|Арбуз|груша", "Арбуз|груша|яблоко", "яблоко|груша|Арбуз", QLocale(QLocale::Russian)},
        {"b| |a", "a|b| ", "b|a| ", German},
        {"10|9,9|-10|-9|7|007|0.1|0,09|-0.1|-0.09", "-10|-9|-0.1|-0.09|0,09|0.1|7|007|9,9|10",
         "10|9,9|7|007|0.1|0,09|-0.09|-0.1|-9|-10", German},
    };
    for (const Case &test : cases) {
        const QStringList texts = test.texts.split(u'|');
        EXPECT_EQ(sortedTexts(texts, false, test.locale), test.ascending);
        EXPECT_EQ(sortedTexts(texts, true, test.locale), test.descending);
    }
}

TEST(SortOrder, TakesOnlyPlainNumbersForNumbers)
{
    for (const QString text : {"", "-", ".", ".5", "1,2,3", "1.2,3", "1 2", "1e3", "1x", "--1"})
        EXPECT_FALSE(SortOrder::isNumber(text, u',')) << text.toStdString();
}

TEST(SortOrder, OrdersRowsWithEqualKeysByTheOtherLanguage)
{
    const std::vector<Row> words{{"x", "9"}, {"b", "2"}, {"a", "3"}, {"b", "1"},  {"", "2"},
                                 {"", "1"},  {"b", ""},  {"1", "2"}, {"1.0", "1"}};
    const auto sorted = [&](int top, int bottom, std::vector<int> columns, bool descending) {
        return sortedRows(words, {top, bottom, std::move(columns), descending, German});
    };
    EXPECT_EQ(sorted(2, 7, {1, 2}, false), (std::vector{3, 4, 2, 7, 6, 5}));
    EXPECT_EQ(sorted(2, 7, {1, 2}, true), (std::vector{2, 4, 7, 3, 5, 6}));
    EXPECT_EQ(sorted(2, 5, {2, 1}, false), (std::vector{4, 2, 5, 3}));
    EXPECT_EQ(sorted(8, 9, {1, 2}, false), (std::vector{9, 8}));
    EXPECT_EQ(sorted(5, 4, {1}, false), std::vector<int>());
}

/// Told by the definition, for numbers that a double holds exactly.
int compare(const QString &one, const QString &other, bool descending)
{
    const auto isEmpty = [](const QString &text) { return text.trimmed().isEmpty(); };
    const auto rank = [](const QString &text) { return SortOrder::isNumber(text, u',') ? 0 : 1; };
    if (isEmpty(one) || isEmpty(other))
        return int(isEmpty(one)) - int(isEmpty(other));
    int order = rank(one) - rank(other);
    if (order == 0 && rank(one) == 0)
        order = one.toInt() - other.toInt();
    else if (order == 0)
        order = QCollator(German).compare(one, other);
    return descending ? -order : order;
}

TEST(SortOrder, OfRandomWordsIsCompleteAndStable)
{
    const QString some[] = {"", " ", "a", "A", "ä", "b", "B", "aa", "7", "-7", "07", "10", "ё", "猫"};
    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round) {
        std::vector<Row> words;
        for (unsigned rows = random() % 30; rows > 0; --rows)
            words.push_back({some[random() % std::size(some)], some[random() % std::size(some)]});
        const bool descending = round % 2;
        const int column = 1 + int(random() % 2);
        const int bottom = int(words.size());
        const std::vector<int> order = sortedRows(words, {1, bottom, {column}, descending, German});
        ASSERT_EQ(std::set(order.begin(), order.end()).size(), words.size());
        for (size_t i = 1; i < order.size(); ++i) {
            const QString before = words[size_t(order[i - 1] - 1)][size_t(column - 1)];
            const QString after = words[size_t(order[i] - 1)][size_t(column - 1)];
            const int by = compare(before, after, descending);
            EXPECT_TRUE(by < 0 || (by == 0 && order[i - 1] < order[i])) << before.toStdString() << after.toStdString();
        }
    }
}

} // namespace
