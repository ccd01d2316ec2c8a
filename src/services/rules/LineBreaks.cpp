#include "services/rules/LineBreaks.h"

#include <algorithm>

namespace {

bool isLineBreak(QChar c)
{
    return c == u'\r' || c == u'\n' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

} // namespace

QString LineBreaks::removed(const QString &text)
{
    if (std::none_of(text.begin(), text.end(), isLineBreak))
        return text;
    QString line;
    line.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        line += isLineBreak(c) ? QChar(u' ') : c;
        if (c == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n')
            ++i;
    }
    return line;
}
