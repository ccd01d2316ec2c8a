#pragma once

#include <QHash>
#include <QLocale>
#include <QStringList>

/// Counts the letters beyond ASCII in a list of words: those that not every keyboard has. A letter and its accents are
/// one; capital letters count as small ones.
class LetterCount
{
public:
    void add(const QString &text);

    /// The most frequent ones, in the order in which a locale sorts them.
    QStringList mostFrequent(int most, const QLocale &locale) const;

private:
    void addLetter(const QString &letter);

    QHash<QString, int> m_counts;
};
