#include "platform/TitleBar.h"

#include <QStringList>

bool TitleBar::hasHelpButton(const QString &platform, const QString &desktop)
{
    if (platform == QLatin1String("windows"))
        return true;
    return platform == QLatin1String("xcb") && desktop.split(QLatin1Char(':')).contains(QLatin1String("KDE"));
}
