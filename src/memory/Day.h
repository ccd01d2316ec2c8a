#pragma once

#include <QDateTime>

/// Days are numbered as Julian days of the user's own time. They turn at four in the morning: who learns past midnight
/// is still learning today.
namespace Day {

inline constexpr int TurnsAt = 4; ///< hours after midnight

inline int of(const QDateTime &time)
{
    const QDate date = time.date();
    return int(date.toJulianDay()) - (time.time().hour() < TurnsAt ? 1 : 0);
}

inline QDate date(int day)
{
    return QDate::fromJulianDay(day);
}

} // namespace Day
