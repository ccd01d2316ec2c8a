#include "services/rules/CellText.h"

#include <algorithm>

namespace {

bool isBreak(QChar c)
{
    return c == u'\t' || c == u'\r' || c == u'\n' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

} // namespace

QString CellText::cleaned(const QString &text)
{
    if (std::none_of(text.begin(), text.end(), isBreak))
        return text;
    QString line;
    line.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        line += isBreak(c) ? QChar(u' ') : c;
        if (c == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n')
            ++i;
    }
    return line;
}
