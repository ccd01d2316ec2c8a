#include "quiz/rules/HeadingLanguages.h"

TEST(HeadingLanguages, AHeadingNamesALanguageInManyWays)
{
    const HeadingLanguages names;
    const std::pair<QLocale::Language, const char *> cases[] = {
        {QLocale::German,
         "German|german| Deutsch |Allemand|alemán|aleman|Tedesco|Немецкий|niemiecki|alemão|ドイツ語|德语|"
         "الألمانية|de|DE|deu|ger|de-AT|de_CH|German words|Wort auf Deutsch|German (Austria)|"
         "Немецкий язык|اللغة الألمانية"},
        {QLocale::French, "French|français|FRANCAIS|Französisch|francuski|Fra|fr-CA|1. French"},
        {QLocale::English, "English|British English|anglais|английский|英語|en_GB"},
        {QLocale::Chinese, "Chinese|中文|中文（简体）|Chinesisch|zh"},
        {QLocale::NorwegianBokmal, "Norwegian|norsk|no"},
        {QLocale::Hebrew, "עברית|hebräisch"},
        {QLocale::AnyLanguage, "| |Language 1|Sprache 2|Words|Question|A|1|No. 5|it is|de la|Qq|C|dog"}};
    for (const auto &[language, headings] : cases) {
        for (const QString &heading : QString(headings).split(u'|'))
            EXPECT_EQ(names.languageOf(heading).value_or(QLocale::AnyLanguage), language) << heading.toStdString();
    }
}
