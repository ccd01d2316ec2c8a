#include "platform/WaylandDesktop.h"

#include <QGuiApplication>

bool WaylandDesktop::isHere()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}
