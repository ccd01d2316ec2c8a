#include "memory/Schedule.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::array<double, 21> W = {0.212,  1.2931, 2.3065, 8.2956, 6.4133, 0.8334, 3.0194,
                                      0.001,  1.8722, 0.1666, 0.796,  1.4835, 0.0614, 0.2629,
                                      1.6483, 0.6014, 1.8729, 0.5425, 0.0912, 0.0658, 0.1542};
constexpr double LeastStability = 0.001;
constexpr double MostStability = Schedule::LongestInterval;
const double Factor = std::pow(0.9, -1 / W[20]) - 1;

double initialStability(Grade grade)
{
    return W[size_t(grade) - 1];
}

/// May be outside 1 to 10.
double initialDifficulty(Grade grade)
{
    return W[4] - std::exp((int(grade) - 1) * W[5]) + 1;
}

double withinRange(double difficulty)
{
    return std::clamp(difficulty, 1.0, 10.0);
}

/// Difficulty goes less far the nearer it is to 10, and a little back to that of an easy word.
double nextDifficulty(double difficulty, Grade grade)
{
    const double change = -W[6] * (int(grade) - 3);
    const double damped = difficulty + change * (10 - difficulty) / 9;
    return withinRange(W[7] * initialDifficulty(Grade::Easy) + (1 - W[7]) * damped);
}

double afterSuccess(const Card &card, double chance, Grade grade)
{
    const double hard = grade == Grade::Hard ? W[15] : 1;
    const double easy = grade == Grade::Easy ? W[16] : 1;
    return card.stability * (1 + std::exp(W[8]) * (11 - card.difficulty) * std::pow(card.stability, -W[9]) *
                                     (std::exp((1 - chance) * W[10]) - 1) * hard * easy);
}

double afterMiss(const Card &card, double chance)
{
    const double kept = W[11] * std::pow(card.difficulty, -W[12]) * (std::pow(card.stability + 1, W[13]) - 1) *
                        std::exp((1 - chance) * W[14]);
    return std::min(kept, card.stability / std::exp(W[17] * W[18]));
}

/// Only a miss lowers it on the day of the last answer.
double onSameDay(const Card &card, Grade grade)
{
    const double growth = std::exp(W[17] * (int(grade) - 3 + W[18])) * std::pow(card.stability, -W[19]);
    return card.stability * (grade == Grade::Again ? growth : std::max(growth, 1.0));
}

double nextStability(const Card &card, Grade grade, int days)
{
    if (days == 0)
        return onSameDay(card, grade);
    const double chance = Schedule::retrievability(card.stability, days);
    return grade == Grade::Again ? afterMiss(card, chance) : afterSuccess(card, chance, grade);
}

} // namespace

Card Schedule::next(const Card &card, Grade grade, int today)
{
    Card next = card;
    if (card.isNew()) {
        next.stability = initialStability(grade);
        next.difficulty = withinRange(initialDifficulty(grade));
    } else {
        const int days = std::max(0, today - card.last);
        next.stability = std::clamp(nextStability(card, grade, days), LeastStability, MostStability);
        next.difficulty = nextDifficulty(card.difficulty, grade);
    }
    next.last = today;
    next.due = today + interval(next.stability);
    ++next.asked;
    next.missed += grade == Grade::Again ? 1 : 0;
    return next;
}

double Schedule::retrievability(double stability, int days)
{
    return std::pow(1 + Factor * days / stability, -W[20]);
}

int Schedule::interval(double stability)
{
    const double days = stability / Factor * (std::pow(Retention, -1 / W[20]) - 1);
    return int(std::clamp(std::round(days), 1.0, double(LongestInterval)));
}
