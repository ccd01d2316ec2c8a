#include "widgets/grid/FlexGridSort.h"

#include "widgets/grid/FlexGrid.h"
#include "widgets/grid/FlexGridCells.h"

#include <QCollator>

#include <algorithm>
#include <numeric>
#include <optional>

namespace {

enum class Rule { Generic, Numeric, StringNoCase, String };

/// One cell as it is compared: numbers stand before texts, texts before empty cells.
struct Key
{
    enum Rank { Number, Word, Empty };
    Rank rank = Empty;
    double number = 0;
    std::optional<QCollatorSortKey> word;
};

/// A sign, digits and a decimal point, the last two optional where the other stands.
std::optional<double> numberOf(const QString &text, QChar decimalPoint)
{
    QString plain = text.trimmed();
    plain.replace(decimalPoint, u'.');
    const auto isPart = [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.' || c == u'-' || c == u'+'; };
    bool isNumber = std::all_of(plain.begin(), plain.end(), isPart);
    const double number = isNumber ? plain.toDouble(&isNumber) : 0;
    return isNumber ? std::optional(number) : std::nullopt;
}

QCollator collatorFor(QLocale locale, Rule rule)
{
    if (locale.language() == QLocale::C)
        locale = QLocale(QLocale::English); // the C locale would order by code points
    QCollator collator(locale);
    collator.setCaseSensitivity(rule == Rule::StringNoCase ? Qt::CaseInsensitive : Qt::CaseSensitive);
    return collator;
}

Key keyOf(const QString &text, Rule rule, const QCollator &collator, QChar decimalPoint)
{
    Key key;
    if (text.isEmpty())
        return key;
    key.rank = Key::Word;
    if (rule == Rule::Generic || rule == Rule::Numeric) {
        const std::optional<double> number = numberOf(text, decimalPoint);
        if (number || rule == Rule::Numeric) {
            key.rank = Key::Number;
            key.number = number.value_or(0);
            return key;
        }
    }
    key.word = collator.sortKey(text);
    return key;
}

int compareKeys(const Key &a, const Key &b, bool descending)
{
    if (a.rank == Key::Empty || b.rank == Key::Empty)
        return int(a.rank == Key::Empty) - int(b.rank == Key::Empty);
    int result = int(a.rank) - int(b.rank);
    if (result == 0 && a.rank == Key::Number)
        result = a.number < b.number ? -1 : int(a.number > b.number);
    else if (result == 0)
        result = a.word->compare(*b.word);
    return descending ? -result : result;
}

} // namespace

FlexGridSort::FlexGridSort(const FlexGridCells &cells, const QLocale &locale)
    : m_cells(cells)
    , m_locale(locale)
{
}

std::vector<int> FlexGridSort::order(int kind, const Compare &compare) const
{
    std::vector<int> order(size_t(std::max(0, rows.second - rows.first + 1)), 0);
    std::iota(order.begin(), order.end(), rows.first);
    if (kind == FlexGrid::SortCustom) {
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return compare(a, b) < 0; });
        return order;
    }

    const auto rule = Rule((kind - 1) / 2);
    const bool descending = kind % 2 == 0;
    const QCollator collator = collatorFor(m_locale, rule);
    const QChar decimalPoint = m_locale.decimalPoint().at(0);
    // the last key first: a stable sort keeps the order that it made among equal ones
    for (int col = keys.second; col >= keys.first; --col) {
        std::vector<Key> values;
        values.reserve(order.size());
        for (int row = rows.first; row <= rows.second; ++row)
            values.push_back(keyOf(m_cells.text(row, col), rule, collator, decimalPoint));
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
            return compareKeys(values[size_t(a - rows.first)], values[size_t(b - rows.first)], descending) < 0;
        });
    }
    return order;
}
