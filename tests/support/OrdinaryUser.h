#pragma once

#include <sys/wait.h>
#include <unistd.h>

/// Permissions mean nothing to an administrator: what must be refused is tried as an ordinary user.
namespace OrdinaryUser {

/// Runs the check in a child process that is "nobody" when this one belongs to the administrator. True when it
/// returned true.
inline bool run(const std::function<bool()> &check)
{
    constexpr int Nobody = 65534;
    const QTemporaryDir home;
    ::chmod(qPrintable(home.path()), 0777);
    const pid_t child = ::fork();
    if (child == 0) {
        qputenv("XDG_STATE_HOME", home.path().toLocal8Bit());
        const bool ready = ::geteuid() != 0 || (::setgid(Nobody) == 0 && ::setuid(Nobody) == 0);
        ::_exit(ready && check() ? 0 : 1);
    }
    int status = 0;
    return child > 0 && ::waitpid(child, &status, 0) == child && status == 0;
}

} // namespace OrdinaryUser
