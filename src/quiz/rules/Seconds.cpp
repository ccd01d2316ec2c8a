#include "quiz/rules/Seconds.h"

#include "services/rules/TextDigits.h"

#include <QLocale>

#include <cmath>
#include <limits>

namespace {

constexpr double PerSecond = 1000.0;
const QString DecimalMarks = QStringLiteral(".,\u066b"); // the last one goes with Arabic digits

/// The number in the form that programs read.
QString plain(const QString &text)
{
    QString number;
    for (const char32_t letter : text.toStdU32String()) {
        const int digit = QChar::digitValue(letter);
        const QString same = QString::fromUcs4(&letter, 1);
        number += digit >= 0 ? QString::number(digit) : DecimalMarks.contains(same) ? QStringLiteral(".") : same;
    }
    return number;
}

} // namespace

QRegularExpression Seconds::pattern()
{
    return QRegularExpression(QStringLiteral("\\p{Nd}*[%1]?\\p{Nd}*").arg(DecimalMarks));
}

std::optional<int> Seconds::toMilliseconds(const QString &text)
{
    const double seconds = QLocale::c().toDouble(plain(text));
    if (!(seconds > 0))
        return std::nullopt;
    return int(std::min<double>(std::numeric_limits<int>::max(), std::round(seconds * PerSecond)));
}

QString Seconds::fromMilliseconds(int milliseconds)
{
    QLocale locale = TextDigits::numbers();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(milliseconds / PerSecond, 'f', QLocale::FloatingPointShortest);
}
