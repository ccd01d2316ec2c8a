#include "services/rules/TextDigits.h"

#include <QLocale>

QLocale TextDigits::numbers()
{
    const QLocale locale;
    return locale.zeroDigit() == u"0" ? locale : QLocale(QLocale::English);
}

QString TextDigits::inText(const QString &date)
{
    QString text;
    for (const char32_t letter : date.toStdU32String())
        text += QChar::isDigit(letter) ? QString::number(QChar::digitValue(letter)) : QString::fromUcs4(&letter, 1);
    return text;
}
