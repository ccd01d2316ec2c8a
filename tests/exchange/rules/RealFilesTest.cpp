#include "ListFixtures.h"

// Of each program and kind: empty and hidden sheets, rich text, merged cells, formulas with and without results, notes,
// formats, dates; decks within decks. What is odd holds cells of every type and some that programs seldom write.
TEST(RealFiles, ArriveAsTheyShow)
{
    QString found;
    for (const char *name : {"libreoffice.ods", "libreoffice.xlsx", "gnumeric.ods", "gnumeric.xlsx",
                             "gnumeric.gnumeric", "odd/ods", "odd/xlsx", "odd/gnumeric.xml", "old.apkg", "new.apkg"}) {
        const QString path = Data + name;
        const QByteArray bytes = QFileInfo(path).isDir() ? zippedFolder(path) : readFile(path);
        found += QString("== %1\n").arg(name) + described(openBytes(bytes));
    }
    EXPECT_EQ(found.toStdString(), readFile(Data + "described.txt").toStdString());
    EXPECT_EQ(pairsOf(ListReader::openFile(Data + "mnemosyne.txt", {"windows-1252", QLocale::c()})),
              QStringList({"|", "house|das Haus", "street & road|Straße Weg", "дом|house", "a \"quote\"|x"}));
    EXPECT_EQ(pairsOf(readFile(Data + "new.apkg")),
              QStringList({"Deutsch|English", "der Hund|dog", "die Katze|cat", "das Brot bread|<bread>"}));
}
