#include "quiz/rules/HeadingLanguages.h"

#include "services/rules/LanguageNames.h"

#include <QRegularExpression>

namespace {

/// In whose words a language can be named, besides its own.
constexpr const char *ProgramLanguages[] = {"en", "de", "fr", "es", "it", "ru", "pl", "pt", "ja", "zh", "ar"};
constexpr qsizetype ShortestWord = 4; ///< of Latin letters that is looked for within a heading

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
    const QList<QByteArray> codes = LanguageNames::codes();
    for (const QByteArray &code : codes)
        add(LanguageNames(QString::fromLatin1(code)).of(code), code);
    for (const char *other : ProgramLanguages) {
        const LanguageNames names(QString::fromLatin1(other));
        for (const QByteArray &code : codes)
            add(names.of(code), code);
    }
}

void HeadingLanguages::add(const QString &name, const QByteArray &code)
{
    const QString known = essential(name);
    if (!known.isEmpty() && !m_names.contains(known))
        m_names.insert(known, QLocale::codeToLanguage(QString::fromLatin1(code)));
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
