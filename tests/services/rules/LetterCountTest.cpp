#include "services/rules/LetterCount.h"

TEST(LetterCount, FindsTheLettersBeyondAsciiInOrder)
{
    const std::tuple<const char *, QStringList, int, const char *> cases[] = {
        {"de", {"Straße", "Äpfel", "schön"}, 24, "ä ö ß"},
        {"de", {"plain", "x-y, 1 €"}, 24, ""},
        {"fr", {"où", "Où", "œuf", "été", "ça"}, 24, "ç é œ ù"},
        {"fr", {"e\u0301te\u0301"}, 24, "é"},
        {"sv", {"öåä"}, 24, "å ä ö"},
        {"tr", {"İstanbul", "ılık"}, 24, "ı İ"},
        {"ru", {"ёж", "Е́ж"}, 24, "е́ ё ж"},
        {"en", {"\U0001F600 \U00010428"}, 24, "\U00010428"},
        {"es", {"ñandú", "niño", "añil", "él"}, 2, "é ñ"}};
    for (const auto &[locale, words, most, letters] : cases) {
        LetterCount count;
        for (const QString &word : words)
            count.add(word);
        EXPECT_EQ(count.mostFrequent(most, QLocale(QString(locale))).join(u' ').toStdString(), letters) << locale;
    }
}
