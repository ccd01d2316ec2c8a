#include "document/rules/file/CodePage.h"

#include <QLocale>

namespace {

/// The script decides for every language that is not written in Latin letters.
const char *nameForScript(QLocale::Script script)
{
    switch (script) {
    case QLocale::CyrillicScript:
        return "windows-1251";
    case QLocale::GreekScript:
        return "windows-1253";
    case QLocale::HebrewScript:
        return "windows-1255";
    case QLocale::ArabicScript:
        return "windows-1256";
    case QLocale::ThaiScript:
        return "windows-874";
    case QLocale::JapaneseScript:
        return "windows-932";
    case QLocale::SimplifiedHanScript:
        return "windows-936";
    case QLocale::KoreanScript:
        return "windows-949";
    case QLocale::TraditionalHanScript:
        return "windows-950";
    default:
        return nullptr;
    }
}

const char *nameForLatinLanguage(QLocale::Language language)
{
    switch (language) {
    case QLocale::Albanian:
    case QLocale::Bosnian:
    case QLocale::Croatian:
    case QLocale::Czech:
    case QLocale::Hungarian:
    case QLocale::LowerSorbian:
    case QLocale::Polish:
    case QLocale::Romanian:
    case QLocale::Serbian:
    case QLocale::Slovak:
    case QLocale::Slovenian:
    case QLocale::Turkmen:
    case QLocale::UpperSorbian:
        return "windows-1250";
    case QLocale::Azerbaijani:
    case QLocale::Turkish:
    case QLocale::Uzbek:
        return "windows-1254";
    case QLocale::Estonian:
    case QLocale::Latvian:
    case QLocale::Lithuanian:
        return "windows-1257";
    case QLocale::Vietnamese:
        return "windows-1258";
    default:
        return "windows-1252";
    }
}

} // namespace

QByteArray CodePage::nameFor(const QLocale &locale)
{
    const char *name = nameForScript(locale.script());
    return name ? name : nameForLatinLanguage(locale.language());
}
