#include "services/rules/SortOrder.h"

const QLocale German(QLocale::German, QLocale::Germany);

/// Texts between bars, in sorted order.
QString sorted(const QString &texts, bool descending, const QLocale &locale)
{
    const QStringList cells = texts.split(u'|');
    const auto text = [&cells](int row, int) { return cells[row - 1]; };
    QStringList result;
    for (const int row : SortOrder::sortedRows(text, {1, int(cells.size()), {1}, descending, locale}))
        result << cells[row - 1];
    return result.join(u'|');
}

TEST(SortOrder, OrdersNumbersThenWordsThenEmptyCells)
{
    const std::tuple<QString, QString, QString, QLocale> cases[] = {
        {"1.5|-2|+1|1|1.50|0|-0", "-2|0|-0|+1|1|1.5|1.50", "1.5|1.50|+1|1|0|-0|-2", German},
        {"100000000000000000000001|100000000000000000000000|5.", "5.|100000000000000000000000|100000000000000000000001",
         "100000000000000000000001|100000000000000000000000|5.", German},
        {"1a|.|-|2|1.2.3", "2|-|.|1.2.3|1a", "1a|1.2.3|.|-|2", German},
        {"zebra|Österreich|Ofen|Oslo", "Ofen|Oslo|zebra|Österreich", "Österreich|zebra|Oslo|Ofen", QLocale("sv")},
        {"b|B|a|é|e|f", "a|b|B|e|é|f", "f|é|e|B|b|a", QLocale::c()},
        {"яблоко|Арбуз|груша", "Арбуз|груша|яблоко", "яблоко|груша|Арбуз", QLocale(QLocale::Russian)},
        {"10|9,9|-10|-9|7|007|0.1|0,09|-0.1|-0.09", "-10|-9|-0.1|-0.09|0,09|0.1|7|007|9,9|10",
         "10|9,9|7|007|0.1|0,09|-0.09|-0.1|-9|-10", German}};
    for (const auto &[texts, ascending, descending, locale] : cases) {
        EXPECT_EQ(sorted(texts, false, locale), ascending);
        EXPECT_EQ(sorted(texts, true, locale), descending);
    }
    for (const QString text : {"", "-", ".", ".5", "1,2,3", "1.2,3", "1 2", "1e3", "1x", "1.x", "--1"})
        EXPECT_FALSE(SortOrder::isNumber(text, u',')) << text.toStdString();
}

/// Told by the definition, for numbers without a fraction.
int compare(const QString &one, const QString &other, const SortOrder::Request &request)
{
    using enum SortOrder::Rule;
    static QCollator collator(German);
    collator.setCaseSensitivity(request.rule == StringNoCase ? Qt::CaseInsensitive : Qt::CaseSensitive);
    const auto isEmpty = [](const QString &text) { return text.trimmed().isEmpty(); };
    const auto isNumber = [&request](const QString &text) {
        return request.rule == Numeric || (request.rule == Generic && SortOrder::isNumber(text, u','));
    };
    if (isEmpty(one) || isEmpty(other))
        return int(isEmpty(one)) - int(isEmpty(other));
    int order = int(isNumber(other)) - int(isNumber(one));
    if (order == 0)
        order = isNumber(one) ? one.toInt() - other.toInt() : collator.compare(one, other);
    return request.descending ? -order : order;
}

TEST(SortOrder, OfRandomWordsFollowsTheDefinition)
{
    const QString some[] = {"", " ", "a", "A", "ä", "b", "B", "aa", "0", "7", "-7", "07", "10", "ё", "猫"};
    const std::vector<int> columns[] = {{1}, {2}, {1, 2}, {2, 1}};
    std::mt19937 random(7);
    for (unsigned round = 0; round < 1000; ++round) {
        std::array<std::array<QString, 2>, 40> words;
        for (auto &row : words)
            row = {some[random() % std::size(some)], some[random() % std::size(some)]};
        const auto text = [&words](int row, int col) { return words[size_t(row - 1)][size_t(col - 1)]; };
        const int top = 1 + int(random() % 10), bottom = top - 1 + int(random() % 30);
        const SortOrder::Request request{
            top, bottom, columns[random() % 4], round % 2 == 1, German, SortOrder::Rule(random() % 4)};
        std::vector<int> expected(size_t(bottom - top + 1));
        std::iota(expected.begin(), expected.end(), top);
        std::stable_sort(expected.begin(), expected.end(), [&](int a, int b) {
            int order = 0;
            for (size_t i = 0; order == 0 && i < request.columns.size(); ++i)
                order = compare(text(a, request.columns[i]), text(b, request.columns[i]), request);
            return order < 0;
        });
        EXPECT_EQ(SortOrder::sortedRows(text, request), expected) << round;
    }
}
