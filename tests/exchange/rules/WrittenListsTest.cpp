#include "ListFixtures.h"

#include "exchange/rules/Conversion.h"
#include "exchange/rules/ListWriter.h"
#include "exchange/rules/workbook/CellFormat.h"

namespace {

using ListWriter::Format;

const QStringList Words{"English|German", "a,b;c|say \"x\"", "\"q\" and|#1", "#2|<b>&amp;", "|only", "дом|家", " x |"};

Vocabulary vocabulary()
{
    Vocabulary vocabulary;
    for (const QString &pair : Words)
        vocabulary.append(pair.section('|', 0, 0), pair.section('|', 1));
    vocabulary.append({}, {});
    return vocabulary;
}

} // namespace

TEST(WrittenLists, ComeBackAsTheyWere)
{
    for (const Format format : {Format::Csv, Format::Tabs, Format::AnkiText}) {
        const ListReader::Result opened = openBytes(ListWriter::write(vocabulary(), format, "t"));
        const ListReader::Table read = ListReader::read(*opened.source, opened.source->proposal());
        PairChoice choice = Pairs::proposal(read.table, false);
        const Vocabulary words = Pairs::take(read.table, choice);
        for (qsizetype row = 0; row < Words.size(); ++row)
            EXPECT_EQ(words.first[size_t(row)] + '|' + words.second[size_t(row)], Words[row]) << int(format);
        EXPECT_EQ(words.rows(), Words.size()) << int(format);
    }
    const QByteArray html = ListWriter::write(vocabulary(), Format::Html, "<t>");
    EXPECT_TRUE(html.contains("<title>&lt;t&gt;</title>") && html.contains("<th dir=\"auto\">English</th>"));
    EXPECT_TRUE(html.contains("<tr><td dir=\"auto\">#2</td><td dir=\"auto\">&lt;b&gt;&amp;amp;</td></tr>"));
    EXPECT_EQ(html.count("<tr>"), Words.size());
}

TEST(Conversion, GoesByContentAndByTheEndsOfNames)
{
    const QTemporaryDir folder;
    const QString in = writeFile(folder.filePath("words.ods"), "house - Haus\n");
    const std::tuple<QString, QString, int, const char *> cases[] = {
        {in, "a.csv", 0, "house,Haus\r\n"},
        {in, "a.TSV", 0, "house\tHaus\n"},
        {in, "a.anki.txt", 0, "#separator:tab\n#html:false\nhouse\tHaus\n"},
        {in, "a.gla", 0, nullptr},
        {folder.filePath("a.gla"), "b.csv", 0, "house,Haus\r\n"},
        {in, "a.pdf", 2, nullptr},
        {in, "none/a.csv", 1, nullptr},
        {folder.filePath("missing"), "c.csv", 1, nullptr},
        {folder.path(), "c.csv", 1, nullptr}};
    for (const auto &[from, to, status, content] : cases) {
        QString told;
        QTextStream complaints(&told);
        const QString out = folder.filePath(to);
        EXPECT_EQ(Conversion::run(from, out, {"windows-1252", QLocale::c()}, complaints), status) << to.toStdString();
        EXPECT_EQ(told.isEmpty(), status == 0) << told.toStdString();
        EXPECT_EQ(QFile::exists(out), status == 0) << to.toStdString();
        if (content) {
            EXPECT_EQ(readFile(out), content);
        }
    }
}

TEST(CellFormat, ShowsNumbersAsASpreadsheetDoes)
{
    const std::tuple<double, const char *, const char *> cases[] = {{1234.5, "", "1234.5"},
                                                                    {1e15, "General", "1e+15"},
                                                                    {1234567890123., "General", "1234567890123"},
                                                                    {0.1 + 0.2, "General", "0.3"},
                                                                    {1234.5, "#,##0.00", "1,234.50"},
                                                                    {-3, "0;\"minus \"0", "minus 3"},
                                                                    {-3, "0.0", "-3.0"},
                                                                    {5, "000", "005"},
                                                                    {1.5, "0.##", "1.5"},
                                                                    {12, "[$€-407] 0.00", "€ 12.00"},
                                                                    {12, "0.00\\ \"EUR\"", "12.00 EUR"},
                                                                    {0.125, "0.0%", "12.5%"},
                                                                    {0.5, "# ?/?", "0.5"},
                                                                    {45413, "dd.mm.yyyy", "01.05.2024"},
                                                                    {45413, "yyyy\\-mm\\-dd", "2024-05-01"},
                                                                    {45413, "d mmmm yy", "1 May 24"},
                                                                    {45413.75, "h:mm AM/PM", "6:00 PM"},
                                                                    {45413.75, "hh:mm:ss", "18:00:00"},
                                                                    {-1, "dd.mm.yyyy", ""},
                                                                    {1e300, "dd.mm.yyyy", ""},
                                                                    {3, "\"", "3"},
                                                                    {3, "[", "3"},
                                                                    {3, "\\", "3"}};
    for (const auto &[value, code, text] : cases)
        EXPECT_EQ(CellFormat::shown(value, QString::fromUtf8(code), false, QLocale::c()).toStdString(), text) << code;
    EXPECT_EQ(CellFormat::shown(0, u"yyyy-mm-dd", true, QLocale::c()), "1904-01-01");
    EXPECT_EQ(CellFormat::shown(std::nan(""), u"0", false, QLocale::c()), QString());
}

TEST(Pairs, NoMoreArriveThanAVocabularyHolds)
{
    const ListReader::Result opened = openBytes("a,b,c\nd,,\n,,e\nf,g,\n");
    const ListReader::Table read = ListReader::read(*opened.source, opened.source->proposal());
    const PairChoice choice{1, 0, false, false};
    const Pairs::Count count = Pairs::count(read.table, choice, 2);
    EXPECT_EQ(count.rows, 2);
    EXPECT_EQ(count.dropped, (Dropped{1, 1, 1, 0}));
    const Vocabulary words = Pairs::take(read.table, choice, 2);
    EXPECT_EQ(words.first, (std::vector<QString>{"", "b", ""}));
    EXPECT_EQ(words.second, (std::vector<QString>{"", "a", "d"}));
}
