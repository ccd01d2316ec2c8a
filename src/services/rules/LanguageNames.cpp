#include "services/rules/LanguageNames.h"

#include <QCollator>

#include <unicode/uldnames.h>
#include <unicode/uloc.h>

#include <algorithm>
#include <array>

namespace {

ULocaleDisplayNames *namesIn(const QString &language, LanguageNames::Form form)
{
    UErrorCode error = U_ZERO_ERROR;
    // one without a name would be called by its code
    UDisplayContext context[]{UDISPCTX_NO_SUBSTITUTE, form == LanguageNames::InList
                                                          ? UDISPCTX_CAPITALIZATION_FOR_UI_LIST_OR_MENU
                                                          : UDISPCTX_CAPITALIZATION_NONE};
    return uldn_openForContext(language.toLatin1().constData(), context, int(std::size(context)), &error);
}

/// Those of the desktop's locales, and those that are learned though nobody's desktop speaks them.
QList<QByteArray> spokenOrLearned()
{
    QList<QByteArray> codes{"la", "grc", "sa"};
    for (int32_t i = 0; i < uloc_countAvailable(); ++i)
        codes += QByteArray(uloc_getAvailable(i)).split('_').front();
    return codes;
}

} // namespace

LanguageNames::LanguageNames(const QString &language, Form form)
    : m_language(language.isEmpty() ? QStringLiteral("en") : language)
    , m_names(namesIn(m_language, form))
{
}

LanguageNames::~LanguageNames()
{
    uldn_close(m_names);
}

QList<QByteArray> LanguageNames::codes()
{
    QList<QByteArray> all{"no"};
    for (int number = QLocale::C + 1; number <= QLocale::LastLanguage; ++number)
        all += QLocale::languageToCode(QLocale::Language(number)).toLatin1();
    all.removeAll(QByteArray());
    return all;
}

QString LanguageNames::of(const QByteArray &code) const
{
    std::array<UChar, 128> name{};
    UErrorCode error = m_names ? U_ZERO_ERROR : U_ILLEGAL_ARGUMENT_ERROR;
    const int32_t size = uldn_languageDisplayName(m_names, code.constData(), name.data(), int32_t(name.size()), &error);
    return U_SUCCESS(error) ? QString::fromUtf16(name.data(), size) : QString();
}

QString LanguageNames::translated(const QString &english) const
{
    for (int number = QLocale::C + 1; number <= QLocale::LastLanguage; ++number) {
        const auto language = QLocale::Language(number);
        if (QLocale::languageToString(language) != english)
            continue;
        const QString name = of(QLocale::languageToCode(language).toLatin1());
        return name.isEmpty() ? english : name;
    }
    return english;
}

QStringList LanguageNames::all() const
{
    QStringList names;
    for (const QByteArray &code : spokenOrLearned())
        names += of(code);
    names.removeAll(QString());
    names.removeDuplicates();
    std::sort(names.begin(), names.end(), QCollator(QLocale(m_language)));
    return names;
}
