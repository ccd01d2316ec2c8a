#include "tools/rules/VocabularyCheck.h"

#include "MemoryCells.h"

TEST(VocabularyCheck, FindsWhatLooksWrong)
{
    // rows that each begin with "/", their two cells separated by "|"; what is found, as "A3=1 blanks": column, row,
    // the row that it repeats, and the kind
    const std::pair<QString, const char *> cases[] = {
        {"", ""},
        {"/house|Haus/|/House|Haus!/tree|Baum", ""},
        {"/a|b/a|b/ a|b", "A2=1 pair A3=1 pair A3 blanks"},
        {"/bank|Bank/bank|Ufer/shore|Ufer/bank|Ufer", "A2=1 answer B3=2 answer A4=2 pair"},
        {"/|x/y|/|x/ |z", "A1 missing B2 missing A3 missing A4 missing A4 blanks"},
        {"/a  b|c\u00a0!/d\u3000e|f ", "A1 blanks B2 blanks"},
        // letters that look the same, and what legitimately stands together
        {"/р\u0061к|x/да \u0063оме|y", "A1 scripts:р\u0061к \u0061 A2 scripts:\u0063оме \u0063"},
        {"/ab\U00010400|x", "A1 scripts:ab\U00010400 \U00010400"},
        {"/Tシャツ|お茶を飲む/2-й ряд|µm, α-Teilchen/год (year)|e\u0301te\u0301/12й|CD를", ""},
        {"/(a|word]/c)(|[d)]/((e)|（f", "A1 brackets B1 brackets A2 brackets B2 brackets A3 brackets B3 brackets"},
        {"/)|x", "A1 brackets"},
        {"/abc) x|x-a) y", "A1 brackets B1 brackets"},
        {"/a) x 2) y|(a) [b {c}]/（中）「文」|d) (e)", ""},
    };
    const char *const kinds[] = {"pair", "answer", "missing", "blanks", "scripts", "brackets"};
    for (const auto &[rows, expected] : cases) {
        MemoryCells cells{};
        for (const QString &row : rows.split(u'/').mid(1))
            cells.words.push_back({row.section(u'|', 0, 0), row.section(u'|', 1)});
        QStringList found;
        for (const auto &[kind, row, col, other, part] : VocabularyCheck::findings(cells))
            found += QChar(u'@' + col) + QString::number(row) + (other ? QString("=%1 ").arg(other) : QString(" ")) +
                     kinds[kind] + (part.isEmpty() ? QString() : u':' + part);
        EXPECT_EQ(found.join(u' ').toStdString(), expected) << rows.toStdString();
    }
}

TEST(VocabularyCheck, TrimsBlanksAndNothingElse)
{
    const QString tests = ">| \t>|a b>a b| a  b >a b|a\u00a0?>a\u00a0?| \u3000a\u3000b>a\u3000b";
    for (const QString &test : tests.split(u'|'))
        EXPECT_EQ(VocabularyCheck::trimmed(test.section(u'>', 0, 0)), test.section(u'>', 1));
}
