#include "progress/rules/ProgressList.h"

#include "memory/Day.h"
#include "services/rules/QuotedText.h"
#include "services/rules/SortOrder.h"

#include <cmath>
#include <numeric>

namespace {

int strengthOf(const Card &card)
{
    const double part = std::log1p(card.stability) / std::log1p(ProgressList::DaysOfFullStrength);
    return int(std::lround(100 * std::min(1.0, part)));
}

/// One line by RFC 4180.
QString csvLine(const QStringList &fields)
{
    QStringList line;
    for (const QString &field : fields)
        line += quoted(field);
    return line.join(u',') + QStringLiteral("\r\n");
}

QString isoDate(int day)
{
    return Day::date(day).toString(Qt::ISODate);
}

} // namespace

ProgressList::ProgressList(std::vector<ProgressWord> words, int today)
    : m_words(std::move(words))
    , m_today(today)
{
}

ProgressList::State ProgressList::state(int i) const
{
    const Card &card = at(i).card;
    if (card.isNew())
        return New;
    if (Schedule::isDue(card, m_today))
        return Due;
    return card.stability >= DaysOfKnown ? Known : Learning;
}

int ProgressList::strength(int i) const
{
    return strengthOf(at(i).card);
}

std::array<int, ProgressList::States> ProgressList::byState() const
{
    std::array<int, States> counts{};
    for (int i = 0; i < count(); ++i)
        ++counts[state(i)];
    return counts;
}

std::vector<int> ProgressList::dueByDay(int days) const
{
    std::vector<int> counts(size_t(days), 0);
    for (int i = 0; i < count(); ++i) {
        const Card &card = at(i).card;
        if (card.isNew())
            continue;
        const int day = Schedule::isDue(card, m_today) ? 0 : card.due - m_today;
        if (day < days)
            ++counts[size_t(day)];
    }
    return counts;
}

double ProgressList::value(Number number, const ProgressWord &word) const
{
    const Card &card = word.card;
    const int due = Schedule::isDue(card, m_today) ? std::min(card.due, m_today) : card.due;
    const std::array values = {double(card.asked), double(card.asked - card.missed), double(card.last), double(due),
                               card.stability};
    return values[number];
}

std::vector<int> ProgressList::orderedBy(Number number, bool descending) const
{
    std::vector<int> order(m_words.size());
    std::iota(order.begin(), order.end(), 0);
    const auto known = std::stable_partition(order.begin(), order.end(), [this](int i) { return !at(i).card.isNew(); });
    std::stable_sort(order.begin(), known, [=, this](int a, int b) {
        const double first = value(number, at(a));
        const double second = value(number, at(b));
        return descending ? first > second : first < second;
    });
    return order;
}

std::vector<int> ProgressList::orderedBy(Text text, bool descending) const
{
    const auto cell = [=, this](int row, int) { return text == Word ? at(row).word.asked : at(row).word.answer; };
    return SortOrder::sortedRows(cell, {0, count() - 1, {0}, descending, QLocale()});
}

QByteArray ProgressList::csv(const QStringList &headings, const std::vector<int> &order) const
{
    QString lines = csvLine(headings);
    for (const int i : order) {
        const auto &[row, word, card] = at(i);
        const bool isNew = card.isNew();
        lines += csvLine({word.asked, word.answer, QString::number(card.asked),
                          QString::number(card.asked - card.missed), isNew ? QString() : isoDate(card.last),
                          isNew ? QString() : isoDate(card.due), QString::number(strength(i))});
    }
    // Spreadsheets need the mark to read letters beyond ASCII.
    return QByteArrayLiteral("\xEF\xBB\xBF") + lines.toUtf8();
}
