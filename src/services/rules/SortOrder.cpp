#include "services/rules/SortOrder.h"

#include <QCollator>

#include <algorithm>
#include <iterator>
#include <numeric>

namespace {

using Rows = std::vector<int>;

bool isDigit(QChar ch)
{
    return ch >= u'0' && ch <= u'9';
}

qsizetype pointIn(QStringView number, QChar decimalPoint)
{
    const qsizetype point = number.indexOf(u'.');
    return point < 0 ? number.indexOf(decimalPoint) : point;
}

/// Sign, digits before and digits behind the decimal point without zeros that say nothing.
struct Number
{
    Number(QStringView text, QChar decimalPoint)
    {
        text = text.trimmed();
        negative = text.startsWith(u'-');
        if (negative || text.startsWith(u'+'))
            text = text.mid(1);
        const qsizetype point = pointIn(text, decimalPoint);
        whole = point < 0 ? text : text.left(point);
        fraction = point < 0 ? QStringView() : text.mid(point + 1);
        while (whole.startsWith(u'0'))
            whole = whole.mid(1);
        while (fraction.endsWith(u'0'))
            fraction.chop(1);
        if (whole.isEmpty() && fraction.isEmpty())
            negative = false;
    }

    int compareTo(const Number &other) const
    {
        if (negative != other.negative)
            return negative ? -1 : 1;
        const int magnitude = compareMagnitude(other);
        return negative ? -magnitude : magnitude;
    }

    bool negative;
    QStringView whole;
    QStringView fraction;

private:
    int compareMagnitude(const Number &other) const
    {
        if (whole.size() != other.whole.size())
            return whole.size() < other.whole.size() ? -1 : 1;
        const int byWhole = whole.compare(other.whole);
        return byWhole ? byWhole : fraction.compare(other.fraction);
    }
};

/// Sorts by one key column after the other; the next column is asked only where rows have equal keys.
class Sorter
{
public:
    Sorter(const SortOrder::CellText &text, const SortOrder::Request &request)
        : m_text(text)
        , m_request(request)
        // the C locale has no collation: letters of every script then follow the order most languages share
        , m_collator(request.locale.language() == QLocale::C ? QLocale(QLocale::English) : request.locale)
        , m_decimalPoint(request.locale.decimalPoint().front())
    {
        if (request.rule == SortOrder::Rule::StringNoCase)
            m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    }

    Rows sorted(const Rows &rows, std::size_t key) const
    {
        if (key == m_request.columns.size() || rows.size() < 2)
            return rows;
        const int column = m_request.columns[key];
        Rows numberRows, textRows, emptyRows;
        std::vector<QString> numberTexts; // what the numbers look into
        std::vector<QCollatorSortKey> textKeys;
        textKeys.reserve(rows.size());
        for (const int row : rows) {
            QString text = m_text(row, column);
            if (QStringView(text).trimmed().isEmpty()) {
                emptyRows.push_back(row);
            } else if (countsAsNumber(text)) {
                numberRows.push_back(row);
                numberTexts.push_back(std::move(text));
            } else {
                textRows.push_back(row);
                textKeys.push_back(m_collator.sortKey(text));
            }
        }
        std::vector<Number> numberKeys;
        numberKeys.reserve(numberTexts.size());
        for (const QString &text : numberTexts)
            numberKeys.emplace_back(text, m_decimalPoint);
        Rows numbers = sortedBy(numberKeys, numberRows, key);
        Rows texts = sortedBy(textKeys, textRows, key);
        Rows &first = m_request.descending ? texts : numbers;
        const Rows &second = m_request.descending ? numbers : texts;
        first.insert(first.end(), second.begin(), second.end());
        const Rows empties = sorted(emptyRows, key + 1);
        first.insert(first.end(), empties.begin(), empties.end());
        return std::move(first);
    }

private:
    /// Makes a text that is to count as 0 empty.
    bool countsAsNumber(QString &text) const
    {
        using SortOrder::Rule;
        if (m_request.rule == Rule::String || m_request.rule == Rule::StringNoCase)
            return false;
        const bool number = SortOrder::isNumber(text, m_decimalPoint);
        if (!number && m_request.rule == Rule::Numeric)
            text.clear();
        return number || m_request.rule == Rule::Numeric;
    }

    static int compare(const Number &a, const Number &b) { return a.compareTo(b); }
    static int compare(const QCollatorSortKey &a, const QCollatorSortKey &b) { return a.compare(b); }

    /// The rows in the order of their keys, rows with equal keys in the order of the keys after this one.
    template <typename Key> Rows sortedBy(const std::vector<Key> &keys, const Rows &rows, std::size_t key) const
    {
        Rows order(rows.size());
        std::iota(order.begin(), order.end(), 0);
        if (m_request.descending)
            std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return compare(keys[b], keys[a]) < 0; });
        else
            std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return compare(keys[a], keys[b]) < 0; });
        Rows result(rows.size());
        std::transform(order.begin(), order.end(), result.begin(), [&](int i) { return rows[i]; });
        if (key + 1 < m_request.columns.size())
            sortEqualRuns(keys, order, result, key);
        return result;
    }

    template <typename Key>
    void sortEqualRuns(const std::vector<Key> &keys, const Rows &order, Rows &result, std::size_t key) const
    {
        for (std::size_t begin = 0, end; begin < order.size(); begin = end) {
            end = begin + 1;
            while (end < order.size() && compare(keys[order[begin]], keys[order[end]]) == 0)
                ++end;
            const Rows run = sorted(Rows(result.begin() + begin, result.begin() + end), key + 1);
            std::copy(run.begin(), run.end(), result.begin() + begin);
        }
    }

    const SortOrder::CellText &m_text;
    const SortOrder::Request &m_request;
    QCollator m_collator;
    QChar m_decimalPoint;
};

} // namespace

namespace SortOrder {

std::vector<int> sortedRows(const CellText &text, const Request &request)
{
    Rows rows(std::max(request.bottom - request.top + 1, 0));
    std::iota(rows.begin(), rows.end(), request.top);
    return Sorter(text, request).sorted(rows, 0);
}

bool isNumber(QStringView text, QChar decimalPoint)
{
    text = text.trimmed();
    if (text.startsWith(u'-') || text.startsWith(u'+'))
        text = text.mid(1);
    const qsizetype point = pointIn(text, decimalPoint);
    const QStringView whole = point < 0 ? text : text.left(point);
    const QStringView fraction = point < 0 ? QStringView() : text.mid(point + 1);
    return !whole.isEmpty() && std::all_of(whole.begin(), whole.end(), isDigit) &&
           std::all_of(fraction.begin(), fraction.end(), isDigit);
}

} // namespace SortOrder
