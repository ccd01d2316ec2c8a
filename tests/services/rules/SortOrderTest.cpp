#include "services/rules/SortOrder.h"

/// Rows between bars, with their cells between colons, in sorted order.
QString sorted(const QString &rows, SortOrder::Request request)
{
    const QStringList all = rows.split(u'|');
    request.bottom = request.top + int(all.size()) - 1;
    const auto text = [&](int row, int col) { return all[row - request.top].section(u':', col - 1, col - 1); };
    QStringList result;
    for (const int row : SortOrder::sortedRows(text, request))
        result << all[row - request.top];
    return result.join(u'|');
}

/// A line of sorted.txt: a language, a rule and the columns; rows, and the same in rising and in falling order.
TEST(SortOrder, OrdersNumbersThenWordsThenEmptyCells)
{
    const QString lines = readFile(SOURCE_FOLDER "/tests/services/rules/sorted.txt");
    for (const QString &line : lines.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList parts = line.split(u';'), head = parts[0].split(u' ');
        std::vector<int> columns;
        for (const QChar column : head[2])
            columns.push_back(column.digitValue());
        const auto rule = SortOrder::Rule(QStringList{"generic", "numeric", "nocase", "string"}.indexOf(head[1]));
        EXPECT_EQ(sorted(parts[1], {3, 0, columns, false, QLocale(head[0]), rule}).toStdString(),
                  parts[2].toStdString());
        EXPECT_EQ(sorted(parts[1], {1, 0, columns, true, QLocale(head[0]), rule}).toStdString(),
                  parts[3].toStdString());
    }
    EXPECT_TRUE(SortOrder::sortedRows({}, {5, 3, {1}, false, QLocale()}).empty());
    for (const QString text : {"", "-", ".", ".5", "1,2,3", "1.2,3", "1 2", "1e3", "1x", "1.x", "--1"})
        EXPECT_FALSE(SortOrder::isNumber(text, u',')) << text.toStdString();
}
