#include "document/rules/RowNumbers.h"

#include "resources/StringTable.h"

#include <QStringList>

namespace {

constexpr int MostRanges = 8;

QString rangeText(qsizetype first, qsizetype last)
{
    const QString number = QString::number(first);
    return first == last ? number : number + QLatin1Char('-') + QString::number(last);
}

} // namespace

QString rowNumbersText(const std::vector<qsizetype> &numbers)
{
    QStringList ranges;
    size_t told = 0;
    while (told < numbers.size() && ranges.size() < MostRanges) {
        const qsizetype first = numbers[told];
        qsizetype last = first;
        while (++told < numbers.size() && numbers[told] == last + 1)
            ++last;
        ranges.append(rangeText(first, last));
    }
    QString text = ranges.join(resText(14909));
    if (told < numbers.size())
        text = resText(14062).arg(text).arg(numbers.size() - told);
    return resText(numbers.size() == 1 ? 14060 : 14061).arg(text);
}
