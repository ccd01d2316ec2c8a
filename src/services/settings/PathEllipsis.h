#pragma once

#include <QString>

#include <functional>

namespace PathEllipsis {

/// Tells whether a shortened path is short enough. What fits must fit with a letter less, too.
using Fits = std::function<bool(const QString &path)>;

/// The path with as little as possible of its middle replaced by "..." so that it fits. What follows the last "/" stays
/// whole, even when it does not fit by itself.
QString shortened(const QString &path, const Fits &fits);

} // namespace PathEllipsis
