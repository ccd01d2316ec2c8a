#include "services/desktop/HandleReserve.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr size_t Reserved = 16;
constexpr size_t Needed = 4;  // to show a window
constexpr size_t Plenty = 32; // what has been given back is not taken again at once
constexpr int Pause = 500;    // ms

/// As many handles as there are, up to a count.
std::vector<int> takeHandles(size_t count)
{
    std::vector<int> handles;
    while (handles.size() < count) {
        const int handle = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
        if (handle < 0)
            break;
        handles.push_back(handle);
    }
    return handles;
}

void giveBack(const std::vector<int> &handles)
{
    std::for_each(handles.begin(), handles.end(), ::close);
}

bool areScarce()
{
    const std::vector<int> handles = takeHandles(Needed);
    giveBack(handles);
    return handles.size() < Needed;
}

} // namespace

HandleReserve::HandleReserve(QApplication &application)
{
    fill();
    application.installEventFilter(this);
}

HandleReserve::~HandleReserve()
{
    release();
}

void HandleReserve::fill()
{
    if (!m_handles.empty())
        return;
    m_handles = takeHandles(Reserved);
    const std::vector<int> others = takeHandles(Plenty);
    giveBack(others);
    if (others.size() < Plenty)
        release();
}

void HandleReserve::release()
{
    giveBack(std::exchange(m_handles, {}));
}

bool HandleReserve::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool isTime =
        type == QEvent::Show || type == QEvent::Close || (type == QEvent::Resize && m_nextLook.hasExpired());
    if (isTime && watched->isWidgetType() && static_cast<QWidget *>(watched)->isWindow()) {
        areScarce() ? release() : fill();
        m_nextLook.setRemainingTime(Pause);
    }
    return false;
}
