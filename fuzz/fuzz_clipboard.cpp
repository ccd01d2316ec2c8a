// Any text on the clipboard: no letter gets lost between the cells and none is invented.

#include "Require.h"

#include "services/rules/ClipText.h"

#include <cstdint>

namespace {

/// The cells as a text again, which without quotes is the one they came from, its line breaks made alike.
QString joined(const std::vector<ClipText::Row> &rows)
{
    QString text;
    for (const ClipText::Row &row : rows) {
        for (const QString &field : row)
            text += field + u'\t';
        text.back() = u'\r';
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const std::vector<ClipText::Row> rows = ClipText::parse(text);
    for (const ClipText::Row &row : rows)
        require(!row.empty(), "every row has a field");
    require(!rows.empty(), "every text has a row");
    const QString cells = joined(rows);
    require(cells.size() <= text.size() + 1, "no more letters than there were");
    if (text.contains(u'"'))
        return 0;
    if (text.endsWith(u'\n'))
        text.chop(text.endsWith(QStringLiteral("\r\n")) ? 2 : 1);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\r")).replace(u'\n', u'\r');
    require(cells == text + u'\r', "the cells make up the text");
    return 0;
}
