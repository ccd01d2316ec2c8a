#include "resources/StringTable.h"

TEST(StringTable, TheProgramCarriesItsFaultlessSource)
{
    QStringList faults;
    const auto table = parseStringTable(readFile(SOURCE_FOLDER "/src/resources/strings.txt"), &faults);
    EXPECT_TRUE(faults.isEmpty()) << faults.join(u'\n').toStdString();
    QHash<int, QString> carried;
    for (const int id : resTextIds())
        carried[id] = resText(id);
    EXPECT_EQ(carried, table);
}

TEST(StringTable, HoldsEveryTextThatTheProgramNames)
{
    static const QRegularExpression literalId(R"rx(\b(?:resText|ShowStatus)\((\d+)\)|\b(200\d\d)\b)rx"
                                              R"rx(|name="(?:textId|whatsThisId)"[^>]*>\s*<number>(\d+)</number>)rx");
    const QList<int> ids = resTextIds();
    int named = 0;
    QDirIterator files(SOURCE_FOLDER "/src", {"*.cpp", "*.ui"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        for (auto found = literalId.globalMatch(readFile(files.next())); found.hasNext(); ++named) {
            const int id = found.next().capturedTexts().last().toInt();
            EXPECT_TRUE(id == 0 || ids.contains(id)) << files.fileName().toStdString() << " names text " << id;
        }
    }
    EXPECT_GT(named, 200) << "the patterns above miss some";
}

TEST(StringTable, ParserResolvesEscapesAndNamesFaults)
{
    QStringList faults;
    const auto table = parseStringTable("# head\n1\ta\\nb\\tc\\\\n\\s\n\n2\tx\n2\ty\nno id\n3\t\n4\tbad\\q\n5\tend \n"
                                        "6\tcut\\",
                                        &faults);
    EXPECT_EQ(table, (QHash<int, QString>{{1, "a\nb\tc\\n "}, {2, "x"}}));
    EXPECT_EQ(faults, (QStringList{"line 5: doubled id 2", "line 6: malformed", "line 7: malformed",
                                   "line 8: malformed", "line 9: malformed", "line 10: malformed"}));
}
