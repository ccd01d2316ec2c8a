#include "quiz/rules/HeadingLanguages.h"

#include <QRegularExpression>

#include <unicode/uloc.h>

#include <array>

namespace {

/// In whose words a language can be named, besides its own.
constexpr const char *ProgramLanguages[] = {"en", "de", "fr", "es", "it", "ru", "pl", "pt", "ja", "zh", "ar"};
constexpr qsizetype ShortestWord = 4; ///< of Latin letters that is looked for within a heading

QString nameIn(const QByteArray &code, const char *language)
{
    std::array<UChar, 128> name{};
    UErrorCode error = U_ZERO_ERROR;
    const int32_t length =
        uloc_getDisplayLanguage(code.constData(), language, name.data(), int32_t(name.size()), &error);
    // a language without a name there is called by its code, which is no name
    return error == U_ZERO_ERROR ? QString::fromUtf16(name.data(), length) : QString();
}

/// A name without what does not count.
QString essential(const QString &name)
{
    QString letters;
    for (const QChar letter : name.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
        if (letter.category() != QChar::Mark_NonSpacing)
            letters += letter;
    }
    return letters.simplified();
}

std::optional<QLocale::Language> byCode(const QString &heading)
{
    static const QRegularExpression form(QStringLiteral("^([A-Za-z]{2,3})([-_][A-Za-z0-9]+)*$"));
    const QRegularExpressionMatch match = form.match(heading);
    if (!match.hasMatch())
        return std::nullopt;
    const QLocale::Language language = QLocale::codeToLanguage(match.captured(1).toLower());
    if (language == QLocale::AnyLanguage || language == QLocale::C)
        return std::nullopt;
    return language;
}

/// Short words of a longer heading mean something else ("No", "Ga").
bool canStandAmongOthers(const QString &word)
{
    return word.size() >= ShortestWord || (!word.isEmpty() && word.front().unicode() > 0x24F);
}

} // namespace

HeadingLanguages::HeadingLanguages()
{
    for (int number = QLocale::C + 1; number <= QLocale::LastLanguage; ++number) {
        const auto language = QLocale::Language(number);
        const QByteArray code = QLocale::languageToCode(language).toLatin1();
        if (code.isEmpty())
            continue;
        const auto add = [this, &code, language](const char *in) {
            const QString name = essential(nameIn(code, in));
            if (!name.isEmpty() && !m_names.contains(name))
                m_names.insert(name, language);
        };
        add(code.constData());
        for (const char *other : ProgramLanguages)
            add(other);
    }
}

std::optional<QLocale::Language> HeadingLanguages::languageOf(const QString &heading) const
{
    const QString whole = heading.trimmed();
    if (const auto known = m_names.find(essential(whole)); known != m_names.end())
        return *known;
    if (const auto language = byCode(whole))
        return language;
    static const QRegularExpression between(QStringLiteral("[^\\p{L}\\p{M}]+"));
    for (const QString &word : whole.split(between, Qt::SkipEmptyParts)) {
        const auto known = m_names.find(essential(word));
        if (known != m_names.end() && canStandAmongOthers(word))
            return *known;
    }
    return std::nullopt;
}
