#include "quiz/rules/HeadingLanguages.h"

/// In headings.txt a language stands before what it is called.
TEST(HeadingLanguages, AHeadingNamesALanguageInManyWays)
{
    const HeadingLanguages names;
    for (const QString &line :
         QString(readFile(SOURCE_FOLDER "/tests/quiz/rules/headings.txt")).trimmed().split(u'\n')) {
        for (const QString &heading : line.section(": ", 1).split(u'|'))
            EXPECT_EQ(QLocale::languageToString(names.languageOf(heading).value_or(QLocale::AnyLanguage)),
                      line.section(u':', 0, 0))
                << heading.toStdString();
    }
}
