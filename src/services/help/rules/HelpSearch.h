#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// Finds the topics that speak of what is searched for. Case and accents do not count, and a word is found by its
/// beginning: "practi" finds "Practice". In Chinese and Japanese, where no blank shows it, a word may begin anywhere.
class HelpSearch
{
public:
    struct Hit
    {
        QString page;
        QString title;
    };

    /// True for Chinese and Japanese.
    static bool standsWithoutBlanks(const QString &word);

    void addPage(const QString &page, const QString &title, const QString &text);

    /// The pages that hold every word of the query, those with the words in their title first, then those that name
    /// them more often.
    std::vector<Hit> find(const QString &query) const;

private:
    struct Page
    {
        Hit hit;
        QStringList titleWords;
        QStringList words;
    };

    std::vector<Page> m_pages;
};
