#include "services/rules/TextDigits.h"

#include <QDateTime>
#include <QLocale>

namespace {

QString inText(const QString &date)
{
    QString text;
    for (const char32_t letter : date.toStdU32String())
        text += QChar::isDigit(letter) ? QString::number(QChar::digitValue(letter)) : QString::fromUcs4(&letter, 1);
    return text;
}

} // namespace

QLocale TextDigits::numbers()
{
    const QLocale locale;
    return locale.zeroDigit() == u"0" ? locale : QLocale(QLocale::English);
}

QString TextDigits::date(QDate date, const QString &form)
{
    return inText(form.isEmpty() ? QLocale().toString(date, QLocale::ShortFormat) : QLocale().toString(date, form));
}

QString TextDigits::time(const QDateTime &time)
{
    return inText(QLocale().toString(time, QLocale::ShortFormat));
}
