#pragma once

#include "memory/Schedule.h"
#include "memory/WordKey.h"

#include <QStringList>

#include <array>
#include <vector>

/// A word of a vocabulary as it is asked, and what the memory knows of it.
struct ProgressWord
{
    int row; ///< of the vocabulary
    WordKey word;
    Card card;
};

/// The words of a vocabulary on one day: how each stands, and how many stand how.
class ProgressList
{
public:
    enum State { New, Learning, Known, Due };
    static constexpr int States = 4;
    /// A word that lasts so many days counts as known.
    static constexpr int DaysOfKnown = 21;
    /// A word that lasts so many days has full strength.
    static constexpr int DaysOfFullStrength = 365;

    ProgressList() = default;
    ProgressList(std::vector<ProgressWord> words, int today);

    int count() const { return int(m_words.size()); }
    const ProgressWord &at(int i) const { return m_words[size_t(i)]; }
    int today() const { return m_today; }

    State state(int i) const;
    /// How long the word lasts, from 0 for a new one to 100; each step takes a longer time than the one before.
    int strength(int i) const;

    std::array<int, States> byState() const;
    /// How many words become due on each of so many days from today on; what is due already is due today.
    std::vector<int> dueByDay(int days) const;

    /// The positions of the words ordered by a number that is given for each, or by a text; equal ones keep their
    /// order. New words, which have none of the numbers, come last.
    enum Number { Asked, Right, Last, NextDue, Strength };
    std::vector<int> orderedBy(Number number, bool descending) const;
    enum Text { Word, Answer };
    std::vector<int> orderedBy(Text text, bool descending) const;

    /// The words as comma-separated values, in the order of the positions; headings: of the seven columns. Days are
    /// written as 2026-11-25, the strength in percent.
    QByteArray csv(const QStringList &headings, const std::vector<int> &order) const;

private:
    double value(Number number, const ProgressWord &word) const;

    std::vector<ProgressWord> m_words;
    int m_today = 0;
};
