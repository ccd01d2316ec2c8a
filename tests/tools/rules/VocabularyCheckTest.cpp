#include "tools/rules/VocabularyCheck.h"

#include "MemoryCells.h"

namespace {

/// Rows that each begin with "/", their two cells separated by "|".
MemoryCells cellsOf(const QString &rows)
{
    MemoryCells cells{};
    for (const QString &row : rows.split(u'/').mid(1))
        cells.words.push_back({row.section(u'|', 0, 0), row.section(u'|', 1)});
    return cells;
}

/// What is found, as "A3=1 blanks": column, row, the row that it repeats, and the kind.
std::string foundIn(const MemoryCells &cells)
{
    const char *const kinds[] = {"pair", "answer", "missing", "blanks", "scripts", "brackets"};
    QStringList found;
    for (const Finding &finding : VocabularyCheck::findings(cells)) {
        const QString other = finding.other ? QStringLiteral("=%1").arg(finding.other) : QString();
        const QString part = finding.part.isEmpty() ? QString() : u':' + finding.part;
        found << QStringLiteral("%1%2%3 %4")
                     .arg(QChar(u'@' + finding.col))
                     .arg(finding.row)
                     .arg(other, QLatin1String(kinds[finding.kind]) + part);
    }
    return found.join(u' ').toStdString();
}

TEST(VocabularyCheck, FindsWhatLooksWrong)
{
    const std::pair<const char *, const char *> cases[] = {
        {"", ""},
        {"/house|Haus/|/House|Haus!/tree|Baum", ""},
        {"/a|b/a|b/ a|b", "A2=1 pair A3=1 pair A3 blanks"},
        {"/bank|Bank/bank|Ufer/shore|Ufer/bank|Ufer", "A2=1 answer B3=2 answer A4=2 pair"},
        {"/|x/y|/|x/ |z", "A1 missing B2 missing A3 missing A4 missing A4 blanks"},
        {"/a  b|c\u00a0!/d\u3000e|f ", "A1 blanks B2 blanks"},
        // letters that look the same, and what legitimately stands together
        {"/р\u0061к|x/\u0063оме|y", "A1 scripts:р\u0061к \u0061 A2 scripts:\u0063оме \u0063"},
        {"/Tシャツ|お茶を飲む/2-й ряд|µm, α-Teilchen/год (year)|e\u0301te\u0301/12й|CD를", ""},
        {"/(a|word]/c)(|[d)]/((e)|（f", "A1 brackets B1 brackets A2 brackets B2 brackets A3 brackets B3 brackets"},
        {"/a) x 2) y|(a) [b {c}]/（中）「文」|d) (e)", ""},
    };
    for (const auto &[rows, expected] : cases)
        EXPECT_EQ(foundIn(cellsOf(rows)), expected) << rows;
}

TEST(VocabularyCheck, TrimsBlanksAndNothingElse)
{
    const std::pair<QString, QString> cases[] = {
        {"", ""},
        {" \t", ""},
        {"a b", "a b"},
        {" a  b ", "a b"},
        {"a\u00a0?", "a\u00a0?"},
        {"\u3000a\u3000b", "a\u3000b"},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(VocabularyCheck::trimmed(text), expected);
}

} // namespace
