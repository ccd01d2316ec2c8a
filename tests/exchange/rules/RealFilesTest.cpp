#include "ListFixtures.h"

namespace {

ListReader::Result openData(const char *name)
{
    return ListReader::openFile(Data + QString::fromLatin1(name), {"windows-1252", QLocale::c()});
}

} // namespace

// The first sheet is empty and the last one hidden; rich text, merged cells, formulas, a note, formats.
TEST(RealFiles, WorkbooksArriveAsTheyShow)
{
    const QStringList words{
        "English|German",  "the house|das Haus",           "merged|",     "date|01.05.2024",    "percent|12.5%",
        "number|1,234.50", "formula|the house + das Haus", "3|two lines", "again|noch  einmal", "again|noch  einmal",
        "дом|家"};
    for (const char *name : {"libreoffice.ods", "libreoffice.xlsx", "gnumeric.ods", "gnumeric.xlsx"}) {
        const ListReader::Result opened = openData(name);
        EXPECT_EQ(pairsOf(opened), words) << name;
        // the .xlsx of Gnumeric does not say that a sheet is hidden
        EXPECT_EQ(opened.source->lists().mid(0, 2), QStringList({"Empty", "Words"})) << name;
        EXPECT_EQ(opened.source->lists().size(), name == QByteArray("gnumeric.xlsx") ? 3 : 2) << name;
    }
    QStringList withoutResults = words;
    std::tie(withoutResults[6], withoutResults[7]) = std::pair("formula|", "|two lines");
    const ListReader::Result gnumeric = openData("gnumeric.gnumeric");
    EXPECT_EQ(pairsOf(gnumeric), withoutResults);
    const TextTable table = gnumeric.source->table(gnumeric.source->proposal());
    EXPECT_EQ(Pairs::count(table, Pairs::proposal(table, false)).dropped, (Dropped{0, 3, 0, 2}));
}

// Hidden sheets, styles, dates from 1904 on, cells of every type, and some that programs seldom write.
TEST(OddFiles, WorkbooksArriveAsTheyShow)
{
    const std::pair<QByteArray, const char *> cases[] = {
        {zippedFolder(Data + "odd/ods"), "a   b c d|e f~|g~|g~h|h"},
        {zippedFolder(Data + "odd/xlsx"), "one|two~|1904-01-02~50%|1.5~#N/A|in~FALSE|TRUE~|x~|2~3|4"},
        {readFile(Data + "odd/gnumeric.xml"), "1|2.5~1.00|1904-01-02~2.00|1904-01-04~50.0%|0.25~5|~TRUE|x"}};
    for (const auto &[bytes, words] : cases)
        EXPECT_EQ(pairsOf(bytes), QStringList("|") + QString(words).split('~'));
}

TEST(RealFiles, CardsOfOldAndNewCollectionsAndExportedTexts)
{
    const QStringList cards{"house|das Haus", "street & road|Straße Weg", "tree|Baum", "дом|house"};
    EXPECT_EQ(pairsOf(openData("old.apkg")), QStringList("Front|Back") + cards);
    EXPECT_EQ(pairsOf(openData("mnemosyne.txt")), QStringList({"|", cards[0], cards[1], cards[3], "a \"quote\"|x"}));
    const ListReader::Result opened = openData("new.apkg");
    EXPECT_EQ(opened.source->lists(), QStringList({"", "German::Animals", "German::Food"}));
    EXPECT_EQ(pairsOf(opened),
              QStringList({"Deutsch|English", "der Hund|dog", "die Katze|cat", "das Brot bread|<bread>"}));
    EXPECT_EQ(pairsOf(opened, 1), QStringList({"Deutsch|English", "der Hund|dog", "die Katze|cat"}));
    EXPECT_EQ(pairsOf(opened, 2), QStringList({"Deutsch|English", "das Brot bread|<bread>"}));
}
