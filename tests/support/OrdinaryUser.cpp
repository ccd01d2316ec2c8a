#include "support/OrdinaryUser.h"

#include <QTemporaryDir>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace OrdinaryUser {

bool run(const std::function<bool()> &check)
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
