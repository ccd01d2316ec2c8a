#pragma once

#include <QRegularExpression>

#include <optional>

/// A delay in seconds, as the user writes and reads it: in the digits of any script, with a decimal point or comma.
namespace Seconds {

/// What may stand in a box for seconds while it is edited.
QRegularExpression pattern();

/// Milliseconds, capped at what an int holds; nothing if the text is no number greater than 0.
std::optional<int> toMilliseconds(const QString &text);
/// With the decimal mark of the user's locale.
QString fromMilliseconds(int milliseconds);

} // namespace Seconds
