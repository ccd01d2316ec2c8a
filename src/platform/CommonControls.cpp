#include "platform/CommonControls.h"

#include <QLibraryInfo>

namespace CommonControls {

QVersionNumber version()
{
    const QVersionNumber loaded = QLibraryInfo::version();
    return QVersionNumber(loaded.majorVersion(), loaded.minorVersion());
}

bool isRecentEnough(const QVersionNumber &version)
{
    const int major = version.majorVersion();
    return major >= 5 || (major == 4 && version.minorVersion() >= 72);
}

} // namespace CommonControls
