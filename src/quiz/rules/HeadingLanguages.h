#pragma once

#include <QHash>
#include <QLocale>

#include <optional>

/// Knows which language the heading of a column means: by its name in one of the program's languages or in the language
/// itself, or by its code ("de", "deu", "de-AT"). Capital letters and accents do not count; of a heading with more
/// words than a name, the first word that is one counts ("German words").
class HeadingLanguages
{
public:
    /// Gathers the names, which takes some milliseconds.
    HeadingLanguages();

    /// Nothing for a heading that names no language.
    std::optional<QLocale::Language> languageOf(const QString &heading) const;

private:
    void add(const QString &name, const QByteArray &code);

    QHash<QString, QLocale::Language> m_names;
};
