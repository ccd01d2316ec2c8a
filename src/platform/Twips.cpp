#include "platform/Twips.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace {

constexpr double DefaultDotsPerInch = 96.0;

const QScreen *primaryScreen()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) ? QGuiApplication::primaryScreen() : nullptr;
}

} // namespace

namespace Twips {

double perPixelX()
{
    const QScreen *screen = primaryScreen();
    return PerInch / (screen ? screen->logicalDotsPerInchX() : DefaultDotsPerInch);
}

double perPixelY()
{
    const QScreen *screen = primaryScreen();
    return PerInch / (screen ? screen->logicalDotsPerInchY() : DefaultDotsPerInch);
}

int toPixelsX(int twips)
{
    return int(std::lround(twips / perPixelX()));
}

int toPixelsY(int twips)
{
    return int(std::lround(twips / perPixelY()));
}

int fromPixelsX(int pixels)
{
    return int(std::lround(pixels * perPixelX()));
}

int fromPixelsY(int pixels)
{
    return int(std::lround(pixels * perPixelY()));
}

} // namespace Twips
