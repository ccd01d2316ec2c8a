#include "services/rules/TextDigits.h"

TEST(TextDigits, NumbersAndDatesOfEveryLocaleHaveTheSameDigits)
{
    const QLocale before;
    const std::array<const char *, 3> cases[] = {{"de_DE", "1.234,5", "02.11.26"},
                                                 {"ar_EG", "1,234.5", "2\u200f/11\u200f/2026"},
                                                 {"fa_IR", "1,234.5", "2026/11/2"}};
    for (const auto &[name, number, date] : cases) {
        QLocale::setDefault(QLocale(name));
        EXPECT_EQ(TextDigits::numbers().toString(1234.5), QString(number)) << name;
        EXPECT_EQ(TextDigits::date(QDate(2026, 11, 2)), QString(date)) << name;
    }
    QLocale::setDefault(before);
}
