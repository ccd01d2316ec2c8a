#pragma once

#include <QStringList>

#include <memory>

struct ULocaleDisplayNames;

/// What one language calls the languages of the world.
class LanguageNames
{
public:
    enum Form {
        InText, ///< as within a sentence
        InList  ///< with a capital where the language begins the entries of a list so
    };

    /// language: as in "de" or "pt_BR"; an empty one stands for English.
    explicit LanguageNames(const QString &language, Form form = InText);
    ~LanguageNames();
    Q_DISABLE_COPY_MOVE(LanguageNames)

    /// Of the languages that the toolkit tells apart, and "no": it knows Norwegian only by its two ways of writing.
    static QList<QByteArray> codes();

    /// The name of the language with this code; empty if it has none.
    QString of(const QByteArray &code) const;
    /// The name of the language that English calls so; a text that is no such name stays as it is.
    QString translated(const QString &english) const;
    /// All that are spoken or learned, in alphabetical order.
    QStringList all() const;

private:
    QString m_language;
    ULocaleDisplayNames *m_names;
};
