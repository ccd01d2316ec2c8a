#include "exchange/ImportTexts.h"

#include "exchange/rules/text/TextEncoding.h"
#include "resources/StringTable.h"
#include "services/rules/TextDigits.h"

#include <QLocale>

namespace {

constexpr int FirstEncodingId = 14600;

QString number(qsizetype count)
{
    return TextDigits::numbers().toString(qlonglong(count));
}

} // namespace

QString ImportTexts::arriving(const Pairs::Count &count, int mostShown)
{
    const Dropped &dropped = count.dropped;
    const std::tuple<int, int, qsizetype> parts[] = {{14580, 14536, dropped.columns},
                                                     {14581, 14535, dropped.blankRows},
                                                     {14582, 14537, dropped.rowsBeyond},
                                                     {14583, 14538, dropped.missingResults}};
    QStringList missing;
    for (const auto &[one, many, amount] : parts) {
        if (amount > 0)
            missing += amount == 1 ? resText(one) : resText(many).arg(number(amount));
    }
    QString text = count.rows == 1 ? resText(14533) : resText(14532).arg(number(count.rows));
    if (count.rows > mostShown)
        text += u' ' + resText(14539).arg(mostShown);
    if (!missing.isEmpty())
        text += u'\n' + resText(14534).arg(missing.join(resText(14909)));
    return text;
}

QString ImportTexts::encoding(const QByteArray &name)
{
    const std::vector<QByteArray> &known = TextEncoding::known();
    const auto found = std::find(known.begin(), known.end(), name);
    return resText(FirstEncodingId + int(found - known.begin())) + QStringLiteral(" (") + QString::fromLatin1(name) +
           u')';
}
