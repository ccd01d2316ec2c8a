#include "services/rules/LanguageNames.h"

TEST(LanguageNames, AreThoseOfTheProgramsLanguageInItsOrder)
{
    const char *const cases[][3] = {{"", "Albanian", "German"},           {"de", "Arabisch", "Deutsch"},
                                    {"fr", "Albanais", "Allemand"},       {"ru", "Албанский", "Немецкий"},
                                    {"ja", "アイスランド語", "ドイツ語"}, {"zh_CN", "阿尔巴尼亚语", "德语"}};
    for (const auto &[language, first, later] : cases) {
        const LanguageNames called(language, LanguageNames::InList);
        const QStringList names = called.all();
        const qsizetype place = names.indexOf(QString(first));
        EXPECT_TRUE(place >= 0 && place < names.indexOf(QString(later))) << language;
        EXPECT_EQ(called.translated("German"), later) << language;
        EXPECT_EQ(called.translated("Colours"), "Colours");
        EXPECT_EQ(names.size(), QSet(names.begin(), names.end()).size());
    }
    EXPECT_EQ(LanguageNames("fr").translated("German") + LanguageNames("fr").of("qaa"), "allemand")
        << "one without a name";
}
