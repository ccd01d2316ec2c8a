#pragma once

#include <QtGlobal>

#include <array>

/// What the schedule knows of a word between two answers.
struct Card
{
    double stability = 0;  ///< days until the chance of knowing it has fallen to 90 percent; 0: never asked
    double difficulty = 0; ///< 1 to 10
    int due = 0;           ///< day from which it should be asked again
    int last = 0;          ///< day of the last answer
    int asked = 0;         ///< answers
    int missed = 0;        ///< of them wrong

    bool isNew() const { return asked == 0; }
    bool operator==(const Card &) const = default;
};

enum class Grade { Again = 1, Hard = 2, Good = 3, Easy = 4 };

/// When a word should be asked again: the published formulas and weights of FSRS, version 6, without learning steps and
/// without chance. It has no clock; days are numbered (memory/Day.h). bench/schedule/compare.sh holds it against an
/// independent implementation on random histories: stability and difficulty after every answer to 1e-6 (that one
/// rounds them to eight decimals each time), and the interval of every answer exactly.
class Schedule
{
public:
    static constexpr double Retention = 0.9; ///< the chance of knowing a word on the day it is due
    static constexpr int LongestInterval = 36500;

    /// The card after an answer. A day before the last answer, when the clock was set back, counts as the same day.
    static Card next(const Card &card, Grade grade, int today);

    /// The chance, 0 to 1, of knowing a word of that stability after so many days.
    static double retrievability(double stability, int days);

    /// Days from the answer to the day it is due, 1 to LongestInterval.
    static int interval(double stability);

    /// A word that was asked on a day that has not come yet was asked under a wrong clock: it is due.
    static bool isDue(const Card &card, int today) { return !card.isNew() && (card.due <= today || card.last > today); }
};
