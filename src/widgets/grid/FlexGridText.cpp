#include "widgets/grid/FlexGridText.h"

namespace FlexGridText {

void readCells(const QString &clip, const std::function<void(int row, int col, const QString &text)> &take)
{
    int row = 0;
    int col = 0;
    qsizetype begin = 0;
    for (qsizetype i = 0; i <= clip.size(); ++i) {
        const bool atEnd = i == clip.size();
        const QChar c = atEnd ? QChar(u'\r') : clip.at(i);
        if (c != u'\t' && c != u'\r' && c != u'\n')
            continue;
        if (atEnd && begin == i && col == 0 && row > 0)
            break;
        take(row, col++, clip.mid(begin, i - begin));
        if (c != u'\t') {
            ++row;
            col = 0;
        }
        if (c == u'\r' && i + 1 < clip.size() && clip.at(i + 1) == u'\n')
            ++i;
        begin = i + 1;
    }
}

} // namespace FlexGridText
