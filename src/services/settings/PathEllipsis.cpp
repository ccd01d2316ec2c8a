#include "services/settings/PathEllipsis.h"

namespace PathEllipsis {

QString shortened(const QString &path, const Fits &fits)
{
    const qsizetype separator = path.lastIndexOf(QLatin1Char('/'));
    if (separator < 1 || fits(path))
        return path;
    const QString tail = QLatin1String("...") + path.mid(separator);
    qsizetype kept = 0;
    for (qsizetype tooMany = separator; tooMany - kept > 1;) {
        const qsizetype middle = (kept + tooMany) / 2;
        (fits(path.left(middle) + tail) ? kept : tooMany) = middle;
    }
    if (kept > 0 && path[kept - 1].isHighSurrogate())
        --kept;
    const QString result = path.left(kept) + tail;
    return result.size() < path.size() ? result : path;
}

} // namespace PathEllipsis
