#include "app/rules/RequestedFile.h"

#include "platform/files/LongPath.h"

namespace RequestedFile {

std::optional<QString> requestedPath(QString text)
{
    if (text.startsWith(QLatin1Char('"')))
        text.remove(0, 1);
    if (text.endsWith(QLatin1Char('"')))
        text.chop(1);
    if (!text.endsWith(QStringLiteral(".gla"), Qt::CaseInsensitive))
        return std::nullopt;
    const QString path = LongPath::ExpandLongPath(text);
    return path.isEmpty() ? text : path;
}

} // namespace RequestedFile
