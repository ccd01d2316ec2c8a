#pragma once

#include <QStringList>

/// Programs of the desktop that do something on the side.
namespace DetachedProcess {

/// Starts the program, found on the search path, with its output thrown away, and does not wait for it. False: there is
/// no such program, or it cannot be started.
bool start(const QString &program, const QStringList &arguments);

} // namespace DetachedProcess
