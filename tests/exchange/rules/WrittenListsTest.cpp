#include "ListFixtures.h"

#include "exchange/rules/Conversion.h"
#include "exchange/rules/ListWriter.h"
#include "exchange/rules/text/DelimitedText.h"
#include "exchange/rules/workbook/CellFormat.h"

namespace {

using ListWriter::Format;

/// Words of signs that mean something to one list or the other; letters beyond ASCII stand in the names only.
Vocabulary oddWords()
{
    std::mt19937 random(1);
    const auto word = [&random] {
        QString text("a");
        while (random() % 8)
            text.insert(random() % 2 ? 0 : text.size(), QStringView(u"b ,;#\"<&-=|\"")[qsizetype(random() % 12)]);
        return text;
    };
    Vocabulary vocabulary;
    vocabulary.append("English", "日本語");
    for (int row = 0; row < 4000; ++row)
        vocabulary.append(word(), row % 3 ? word() : QString());
    vocabulary.append({}, {});
    return vocabulary;
}

} // namespace

TEST(WrittenLists, ComeBackAsTheyWere)
{
    const Vocabulary odd = oddWords();
    for (const auto &[format, separator] :
         {std::pair(Format::Csv, ","), {Format::Tabs, "\t"}, {Format::AnkiText, "\t"}}) {
        const ListReader::Result opened = openBytes(ListWriter::write(odd, format, "t"));
        const ListReader::Table read = ListReader::read(*opened.source, {separator, "UTF-8", 0});
        const Vocabulary words = Pairs::take(read.table, {0, 1, format != Format::AnkiText, false});
        EXPECT_TRUE(words.first == std::vector(odd.first.begin(), odd.first.end() - 1)) << int(format);
        EXPECT_TRUE(words.second == std::vector(odd.second.begin(), odd.second.end() - 1)) << int(format);
    }
    EXPECT_EQ(ListWriter::write({}, Format::Csv, "t"), "");
    Vocabulary few;
    few.append("A", "#");
    few.append("x\ny", "<b>&");
    few.append("#1", "z");
    EXPECT_EQ(ListWriter::write(few, Format::Csv, "t"), "A,#\r\n\"x\ny\",<b>&\r\n#1,z\r\n");
    EXPECT_TRUE(ListWriter::write(few, Format::AnkiText, "t").endsWith("\n\"#1\"\tz\n"));
    EXPECT_TRUE(ListWriter::write(odd, Format::Csv, "t").startsWith("\xEF\xBB\xBF"));
    few.append({}, {});
    EXPECT_EQ(ListWriter::write(few, Format::Html, "<t>").toStdString(), readFile(Data + "few.html").toStdString());
    EXPECT_FALSE(ListWriter::losesLetters(few));
    few.first.back() = QChar(0xD800);
    EXPECT_TRUE(ListWriter::losesLetters(few));
    few.first.back().swap(few.second.back());
    EXPECT_TRUE(ListWriter::losesLetters(few));
}

TEST(Conversion, GoesByContentAndByTheEndsOfNames)
{
    const QTemporaryDir folder;
    const QString in = writeFile(folder.filePath("words.ods"), "house - Haus\n");
    const std::tuple<QString, QString, int, const char *> cases[] = {
        {in, "a.csv", 0, "house,Haus\r\n"},
        {in, "a.TSV", 0, "house\tHaus\n"},
        {in, "a.anki.txt", 0, "#separator:tab\n#html:false\nhouse\tHaus\n"},
        {in, "a.gla", 0, "Glosaria\r\n"},
        {folder.filePath("a.gla"), "b.csv", 0, "house,Haus\r\n"},
        {in, "a.html", 0, "<!DOCTYPE"},
        {in, "a.HTM", 0, "<!DOCTYPE"},
        {in, "a.pdf", 2, "glosaria: 'a.pdf': the name has to end"},
        {in, "none/a.csv", 1, "glosaria: none/a.csv can't be written"},
        {folder.filePath("missing"), "c.csv", 1, "glosaria: The file missing can't be opened"},
        {folder.path(), "c.csv", 1, "glosaria: "}};
    for (const auto &[from, to, status, content] : cases) {
        QString told;
        QTextStream complaints(&told);
        const QString out = folder.filePath(to);
        EXPECT_EQ(Conversion::run(from, out, {"windows-1252", QLocale::c()}, complaints), status) << to.toStdString();
        EXPECT_TRUE(told.isEmpty() == !status && QFile::exists(out) == !status) << told.toStdString();
        const QString result = status ? told.remove(folder.path() + '/') : readFile(out);
        EXPECT_TRUE(result.startsWith(content)) << result.toStdString();
    }
    QTextStream complaints(stderr);
    testing::internal::CaptureStdout();
    EXPECT_EQ(Conversion::run(in, "-", {"windows-1252", QLocale::c()}, complaints), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "house\tHaus\n");
}

TEST(CellFormat, ShowsNumbersAsASpreadsheetDoes)
{
    // A line has a value, a code or the number of one that every program knows, what shows, and the locale.
    for (const QString &line : QString(readFile(Data + "cell_formats.txt")).split('\n', Qt::SkipEmptyParts)) {
        const QStringList parts = line.split('`');
        const QLocale locale(parts.value(3, "C"));
        const bool known = parts[1].startsWith("no. ");
        const QString code = known ? CellFormat::builtIn(parts[1].mid(4).toInt(), locale) : parts[1];
        EXPECT_EQ(CellFormat::shown(parts[0].toDouble(), code, false, locale), parts[2]) << line.toStdString();
    }
    EXPECT_EQ(CellFormat::shown(0, u"yyyy-mm-dd", true, QLocale::c()), "1904-01-01");
}

TEST(Pairs, NoMoreArriveThanAVocabularyHolds)
{
    const ListReader::Result opened = openBytes("a,b,c\nd,,\n,,e\nf,g,\n");
    const ListReader::Table read = ListReader::read(*opened.source, opened.source->proposal());
    const PairChoice choice{1, 0, false, false};
    const Pairs::Count count = Pairs::count(read.table, choice, 2);
    EXPECT_TRUE(count.rows == 2 && count.dropped == (Dropped{1, 1, 1, 0}));
    EXPECT_EQ(Pairs::columnNames(read.table, true), QStringList({"Column 1: a", "Column 2: b", "Column 3: c"}));
    EXPECT_EQ(Pairs::columnNames(read.table, false).last(), "Column 3");
    EXPECT_EQ(Pairs::count(DelimitedText::split(u" ", ""), {0, 1, true, false}).dropped, Dropped());
    EXPECT_EQ(Pairs::columnNames(DelimitedText::split(u" ", ";"), true), QStringList({"Column 1", "Column 2"}));
    const QString longName(50, u'x');
    EXPECT_EQ(Pairs::columnNames(DelimitedText::split(longName, ";"), true)[0], "Column 1: " + longName.left(40));
    const Vocabulary words = Pairs::take(read.table, choice, 2);
    EXPECT_EQ(words.first, (std::vector<QString>{"", "b", ""}));
    EXPECT_EQ(words.second, (std::vector<QString>{"", "a", "d"}));
}
