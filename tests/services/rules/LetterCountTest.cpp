#include "services/rules/LetterCount.h"

TEST(LetterCount, FindsTheLettersBeyondAsciiInOrder)
{
    const std::tuple<const char *, QStringList, const char *> cases[] = {
        {"de", {"Straße", "Äpfel", "schön"}, "ä ö ß"},
        {"de", {"plain", "x-y, 1 €"}, ""},
        {"fr", {"où", "Où", "œuf", "été", "ça"}, "ç é œ ù"},
        {"fr", {"e\u0301te\u0301"}, "é"},
        {"sv", {"öåä"}, "å ä ö"},
        {"tr", {"İstanbul", "ılık"}, "ı İ"},
        {"ru", {"ёж", "Е́ж"}, "е́ ё ж"},
        {"en", {"\U0001F600 \U00010428"}, "\U00010428"}};
    for (const auto &[locale, words, letters] : cases) {
        LetterCount count;
        for (const QString &word : words)
            count.add(word);
        EXPECT_EQ(count.mostFrequent(24, QLocale(QLatin1String(locale))).join(u' ').toStdString(), letters) << locale;
    }
    LetterCount count;
    for (const char *word : {"ñandú", "niño", "añil", "él"})
        count.add(QString::fromUtf8(word));
    EXPECT_EQ(count.mostFrequent(2, QLocale("es")).join(u' ').toStdString(), "é ñ");
}
