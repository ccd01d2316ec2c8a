#include "ListFixtures.h"

#include "exchange/rules/cards/MarkupText.h"
#include "exchange/rules/text/DelimitedText.h"
#include "exchange/rules/text/TextEncoding.h"
#include "services/rules/QuotedText.h"

TEST(TextLists, TellsWhatStandsBetweenTheWords)
{
    // A text, and the names and the rows that arrive.
    for (const QByteArray &each : readFile(Data + "text_lists.txt").replace("%%\n", "\x1").split('\x1')) {
        const qsizetype end = each.indexOf("=>\n");
        EXPECT_EQ(pairsOf(each.left(end)), QString(each.mid(end + 3)).chopped(1).split('\n')) << each.constData();
    }
    EXPECT_EQ(DelimitedText::separatorOf(QString("alone\n").repeated(99) + "a;b\n"), ";");
}

TEST(TextTable, HoldsWhatWasWrittenWhateverPartsItsCellsAndRows)
{
    std::mt19937 random(2);
    const auto one = [&random](const QStringList &of) { return of[qsizetype(random() % size_t(of.size()))]; };
    for (const QString separator : {"::", ",", "\t"}) {
        std::vector<QStringList> rows;
        QString text;
        qsizetype letters = 0, cells = 0;
        while (rows.size() < 9000) {
            QStringList line("a");
            while (random() % 3)
                line += one({"", " ", "b c", "\"", "d\"\"e", "\n", "\r\n", separator, "f\"" + separator});
            for (QString cell : line) {
                letters += cell.size();
                const bool isOdd = cell.contains('"') || cell.contains('\n') || cell.contains(separator);
                text += (isOdd ? quoted(cell) : cell) + separator;
            }
            cells += rows.emplace_back(line).size();
            text.chop(separator.size());
            text += one({"\n", "\r", "\r\n"});
        }
        const TextTable table = DelimitedText::split(text + "z\n\r", separator);
        ASSERT_EQ(table.rows(), 9002);
        for (size_t row = 0; row < 9000; ++row) {
            for (qsizetype column = 0; column < table.columns(); ++column)
                ASSERT_EQ(table.cell(qsizetype(row), column), rows[row].value(column)) << row;
        }
        EXPECT_EQ(table.bytes(), 2 * (letters + 1) + 4 * (cells + 2 + 9002)) << "so that a list of millions fits";
        const PairChoice choice{1, 0, true, false};
        EXPECT_TRUE(Pairs::takeAll(TextTable(table), choice) == Pairs::take(table, choice));
        EXPECT_EQ(Pairs::count(table, choice).dropped.blankRows, 1);
    }
}

TEST(TextLists, ReadsEveryCharacterSet)
{
    // character sets, and words in them; > is a tab, ; a line end
    for (const QString &line : QString(readFile(Data + "charsets.txt")).split('\n', Qt::SkipEmptyParts)) {
        const QString text = line.section('|', 1).replace('>', '\t').replace(';', '\n');
        for (const QByteArray &name : line.section('|', 0, 0).toUtf8().split(' ')) {
            const QByteArray bytes = QStringEncoder(name.constData())(text);
            EXPECT_EQ(TextEncoding::detect(bytes, "windows-1252"), name);
            EXPECT_EQ(TextEncoding::decode(bytes, name), text);
        }
    }
    for (const QByteArray &marked : {QByteArray("\xEF\xBB\xBF\x61,b\n"), QByteArray("\xFF\xFE\x61\0\t\0b\0", 8)})
        EXPECT_EQ(pairsOf(marked), QStringList({"|", "a|b"}));
    EXPECT_EQ(TextEncoding::decode("\xE9", "no character set"), "é");
    const ListReader::Result copied = ListReader::openText("é,é"), file = openBytes("\xE9,\xE9");
    for (const auto &[source, word] : {std::pair(&copied, "é"), {&file, "й"}})
        EXPECT_EQ(ListReader::read(*source->source, {",", "windows-1251", 0}).table.cell(0, 1), QString(word));
    EXPECT_EQ(TextEncoding::decode("\x84\x31\x95\x33-", "GB18030"), "-");
    for (const QByteArray &name : TextEncoding::known())
        EXPECT_TRUE(QStringDecoder(name.constData()).isValid()) << name.toStdString();
}

TEST(MarkupText, ShowsWhatAReaderSees)
{
    for (const QString &each : QString(readFile(Data + "markup.txt")).split('\n', Qt::SkipEmptyParts))
        EXPECT_EQ(MarkupText::plain(each.section(" => ", 0, 0)), each.section(" => ", 1)) << each.toStdString();
}
