#include "platform/SignalWatcher.h"

#include <QSocketNotifier>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// Where the handler writes; a handler has nothing but globals.
volatile sig_atomic_t writeEnd = -1;

extern "C" void noteSignal(int number)
{
    const int error = errno;
    const auto byte = static_cast<unsigned char>(number);
    // A full pipe holds requests enough.
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &byte, 1);
    errno = error;
}

} // namespace

SignalWatcher::SignalWatcher(QObject *parent)
    : QObject(parent)
{
    if (::pipe2(m_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    writeEnd = m_pipe[1];
    m_notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &SignalWatcher::readRequests);
    for (int number : {SIGTERM, SIGINT, SIGHUP, SIGPIPE, SIGXFSZ}) {
        struct sigaction before = {};
        ::sigaction(number, nullptr, &before);
        if (before.sa_handler == SIG_IGN)
            continue;
        struct sigaction action = {};
        action.sa_handler = number == SIGPIPE || number == SIGXFSZ ? SIG_IGN : noteSignal;
        action.sa_flags = SA_RESTART;
        ::sigaction(number, &action, nullptr);
        m_before[number] = before;
    }
}

SignalWatcher::~SignalWatcher()
{
    for (const auto &[number, before] : m_before)
        ::sigaction(number, &before, nullptr);
    writeEnd = -1;
    for (int end : m_pipe)
        ::close(end);
}

void SignalWatcher::readRequests()
{
    unsigned char number = 0;
    while (::read(m_pipe[0], &number, 1) == 1)
        Q_EMIT endRequested(number);
}
