#include "widgets/FlexGridText.h"

#include <QStringList>

#include <algorithm>

namespace {

bool isLineBreak(QChar c)
{
    return c == u'\r' || c == u'\n' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

} // namespace

namespace FlexGridText {

QString withoutLineBreaks(const QString &text)
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

std::vector<std::vector<QString>> rowsOf(const QString &clip, bool lastRowMayBeEmpty)
{
    QString text = clip;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\r")).replace(u'\n', u'\r');
    if (!lastRowMayBeEmpty && text.endsWith(u'\r'))
        text.chop(1);

    std::vector<std::vector<QString>> rows;
    for (const QStringView line : qTokenize(text, u'\r')) {
        std::vector<QString> cells;
        for (const QStringView cell : qTokenize(line, u'\t'))
            cells.push_back(withoutLineBreaks(cell.toString()));
        rows.push_back(std::move(cells));
    }
    return rows;
}

} // namespace FlexGridText
