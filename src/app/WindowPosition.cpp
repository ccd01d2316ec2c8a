#include "app/WindowPosition.h"

#include "platform/Twips.h"
#include "platform/WaylandDesktop.h"
#include "services/settings/clsAppProperties.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace {

enum State { Normal = 0, Minimized = 1, Maximized = 2 };

/// Whether a window of this size would lie under a panel, if there is one: a Wayland desktop tells of none.
bool reachesFromEdgeToEdge(const QSize &size, const QSize &screen)
{
    return size.width() >= screen.width() || size.height() >= screen.height();
}

} // namespace

WindowPosition::WindowPosition(QWidget &window, clsAppProperties &settings)
    : m_window(window)
    , m_settings(settings)
{
}

void WindowPosition::restore()
{
    if (apply())
        return;
    useWorkArea();
    apply();
}

bool WindowPosition::apply()
{
    const int state = m_settings.AppWinState();
    if (state != Normal && state != Maximized)
        return false;
    QRect place(Twips::toPixelsX(m_settings.WinPosLeft()), Twips::toPixelsY(m_settings.WinPosTop()),
                Twips::toPixelsX(m_settings.WinPosRight()), Twips::toPixelsY(m_settings.WinPosBottom()));
    const QList<QScreen *> screens = QGuiApplication::screens();
    const bool reachable = std::any_of(screens.begin(), screens.end(), [&place](const QScreen *screen) {
        return screen->availableGeometry().intersects(place);
    });
    if (!reachable)
        return false;
    // The screens may have become smaller, or coarser.
    place.setSize(place.size().boundedTo(QGuiApplication::primaryScreen()->availableVirtualSize()));
    bool maximized = state == Maximized;
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    if (WaylandDesktop::isHere() && reachesFromEdgeToEdge(place.size(), screen)) {
        maximized = true;
        place.setSize(screen * 3 / 4); // when the user restores it
    }
    m_window.move(place.topLeft());
    m_window.resize(place.size());
    m_restoredSize = place.size();
    m_window.setWindowState(maximized ? Qt::WindowMaximized : Qt::WindowNoState);
    return true;
}

void WindowPosition::useWorkArea()
{
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    m_settings.setAppWinState(Normal);
    m_settings.setWinPosLeft(Twips::fromPixelsX(area.left()));
    m_settings.setWinPosTop(Twips::fromPixelsY(area.top()));
    m_settings.setWinPosRight(Twips::fromPixelsX(area.width()));
    m_settings.setWinPosBottom(Twips::fromPixelsY(area.height()));
}

void WindowPosition::makeRoomForFrame()
{
    if (m_window.windowState() != Qt::WindowNoState)
        return; // not the restored size yet
    if (m_window.size() == m_restoredSize)
        m_window.resize(m_restoredSize - (m_window.frameSize() - m_window.size()));
    m_restoredSize = {};
}

void WindowPosition::store()
{
    m_settings.setAppWinState(m_window.isMinimized() ? Minimized : m_window.isMaximized() ? Maximized : Normal);
    m_settings.setWinPosLeft(Twips::fromPixelsX(m_window.x()));
    m_settings.setWinPosTop(Twips::fromPixelsY(m_window.y()));
    m_settings.setWinPosRight(Twips::fromPixelsX(m_window.frameSize().width()));
    m_settings.setWinPosBottom(Twips::fromPixelsY(m_window.frameSize().height()));
}
