#include "resources/StringTable.h"
#include "resources/TextLanguage.h"

namespace {

/// What a translation must hold as the English text does: placeholders in any order, and whether there is a mnemonic.
QString bones(const QString &text)
{
    static const QRegularExpression bone(R"(%\d|&(?=[^& ]))");
    QStringList found;
    for (auto match = bone.globalMatch(text); match.hasNext();)
        found += match.next().captured();
    found.sort();
    return found.join(u' ');
}

} // namespace

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

TEST(TextLanguage, TablesHoldTheTextsOfTheEnglishOne)
{
    const auto english = parseStringTable(readFile(SOURCE_FOLDER "/src/resources/strings.txt"));
    for (const QString &language : TextLanguage::available()) {
        QStringList faults;
        const auto table = parseStringTable(
            readFile(QStringLiteral(SOURCE_FOLDER "/src/resources/strings.%1.txt").arg(language)), &faults);
        EXPECT_TRUE(faults.isEmpty()) << language.toStdString() << ": " << faults.join(u'\n').toStdString();
        for (auto text = table.begin(); text != table.end(); ++text) {
            EXPECT_EQ(bones(*text), bones(english.value(text.key())))
                << language.toStdString() << ' ' << text.key() << ' ' << text->toStdString();
        }
    }
}

TEST(TextLanguage, TheFirstWantedLanguageWithATableIsTaken)
{
    const char *const cases[][2] = {
        {"de_AT", "de"},         {"sv_SE|fr-CA|de", "fr"}, {"en_GB|de", ""}, {"pt_PT", "pt_BR"},
        {"zh-Hans-SG", "zh_CN"}, {"zh_TW|ja", "ja"},       {"C", ""},        {"", ""}};
    for (const auto &[wanted, table] : cases)
        EXPECT_EQ(TextLanguage::bestOf(QString(wanted).split(u'|')).toStdString(), table) << wanted;
}

TEST(TextLanguage, ATableStandsOverTheEnglishTexts)
{
    const QString english = resText(401);
    const auto stands = [&english] {
        TextLanguage::use("ar");
        return TextLanguage::inUse() == "ar" && resText(401) != english && TextLanguage::isolated("a").size() == 3;
    };
    EXPECT_EXIT(std::exit(stands() ? 0 : 1), testing::ExitedWithCode(0), "");
    EXPECT_EQ(TextLanguage::isolated("a"), "a");
}
