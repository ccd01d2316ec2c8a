#include "services/rules/QuotedText.h"

QString quoted(QStringView text)
{
    QString field(u'"');
    for (const QChar c : text) {
        field += c;
        if (c == u'"')
            field += u'"';
    }
    return field += u'"';
}
