#include "quiz/rules/LanguageNames.h"

#include <QCollator>

#include <unicode/locdspnm.h>

#include <algorithm>
#include <memory>

namespace {

std::unique_ptr<icu::LocaleDisplayNames> namesIn(const icu::Locale &language)
{
    UDisplayContext context[]{UDISPCTX_CAPITALIZATION_FOR_UI_LIST_OR_MENU};
    return std::unique_ptr<icu::LocaleDisplayNames>(
        icu::LocaleDisplayNames::createInstance(language, context, int(std::size(context))));
}

/// Those of the desktop's locales, and those that are learned though nobody's desktop speaks them.
QList<QByteArray> languageCodes()
{
    QList<QByteArray> codes{"la", "grc", "sa"};
    int32_t count = 0;
    const icu::Locale *locales = icu::Locale::getAvailableLocales(count);
    for (const icu::Locale *locale = locales; locale != locales + count; ++locale)
        codes += locale->getLanguage();
    return codes;
}

} // namespace

QStringList languageNames(const QString &language)
{
    const QString spoken = language.isEmpty() ? QStringLiteral("en") : language;
    const std::unique_ptr<icu::LocaleDisplayNames> names = namesIn(icu::Locale(spoken.toLatin1().constData()));
    QStringList all;
    for (const QByteArray &code : names ? languageCodes() : QList<QByteArray>()) {
        icu::UnicodeString name;
        names->languageDisplayName(code.constData(), name);
        if (name != icu::UnicodeString(code.constData()))
            all += QString::fromUtf16(name.getBuffer(), name.length());
    }
    all.removeDuplicates();
    std::sort(all.begin(), all.end(), QCollator(QLocale(spoken)));
    return all;
}
