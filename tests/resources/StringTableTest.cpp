#include "resources/StringTable.h"
#include "resources/ResourceFiles.h"
#include "resources/TextLanguage.h"

TEST(StringTable, TheProgramCarriesFaultlessTablesAndAPlainSound)
{
    // what a translation holds as often as the English text does: placeholders and a mnemonic
    using Bone = QRegularExpression;
    const QList<Bone> bones{Bone("%1"), Bone("%2"), Bone("%3"), Bone("%4"), Bone("&(?=[^& ])")};
    for (const QString &language : QStringList("") + TextLanguage::available()) {
        const QString file = QString("/strings.%1.txt").arg(language).replace("..", ".");
        QStringList faults;
        const auto table = parseStringTable(readFile(SOURCE_FOLDER "/src/resources" + file), &faults);
        EXPECT_EQ(faults.join(u'\n'), "") << file.toStdString();
        for (auto text = table.begin(); text != table.end(); ++text) {
            EXPECT_TRUE(*text == resText(text.key()) || !language.isEmpty());
            for (const Bone &bone : bones)
                EXPECT_EQ(text->count(bone), resText(text.key()).count(bone)) << text.key() << text->toStdString();
        }
        const QString toolkit = QString(SOURCE_FOLDER "/src/resources/toolkit.%1.txt").arg(language);
        for (const QByteArray &line : QFile::exists(toolkit) ? readFile(toolkit).split('\n') : QByteArrayList()) {
            const QStringList parts = QString::fromUtf8(line).split('\t');
            EXPECT_TRUE(line.isEmpty() || line.startsWith('#') || parts.size() == 2) << line.toStdString();
            for (const Bone &bone : bones)
                EXPECT_EQ(parts.first().count(bone), parts.last().count(bone)) << line.toStdString();
        }
    }
    EXPECT_TRUE(ResourceFiles::contents(ResourceFiles::ErrorSound).contains({"WAVEfmt \20\0\0\0\1\0\1\0", 16}));
}

TEST(StringTable, HoldsEveryTextThatTheProgramNames)
{
    const QRegularExpression literalId(R"rx(\b(?:resText|ShowStatus)\((\d+)\)|\b(200\d\d)\b)rx"
                                       R"rx(|name="(?:textId|whatsThisId)"[^>]*>\s*<number>(\d+)</number>)rx");
    QSet<int> named;
    QDirIterator files(SOURCE_FOLDER "/src", {"*.cpp", "*.ui"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        for (auto found = literalId.globalMatch(readFile(files.next())); found.hasNext();)
            named += found.next().capturedTexts().last().toInt();
    EXPECT_GT(named.size(), 200) << "the patterns above miss some";
    named.removeIf([known = resTextIds()](int id) { return id == 0 || known.contains(id); });
    EXPECT_EQ(named, QSet<int>());
}

TEST(StringTable, ParserResolvesEscapesAndNamesFaults)
{
    QStringList faults;
    const char *source =
        "# head\n1\t\\na\\n\\tb\\\\n\\s\n\n2\tx\n2\ty\nno id\n3\t\n4\tbad\\q\n5\tend \n6\t front\n7\n8\tcut\\";
    EXPECT_EQ(parseStringTable(source, &faults), (QHash<int, QString>{{1, "\na\n\tb\\n "}, {2, "x"}}));
    EXPECT_EQ(QString("%1 %2, %3").arg(faults.size()).arg(faults.first(), faults.last()),
              "8 line 5: doubled id 2, line 12: malformed");
    EXPECT_EQ(parseStringTable("no id\n1\ta").size(), 1);
}

TEST(TextLanguage, TheTableOfTheFirstWantedLanguageWithOneStandsOverTheEnglishTexts)
{
    const char *const cases[][2] = {
        {"de_AT", "de"},         {"sv_SE|fr-CA|de", "fr"}, {"en_GB|de", ""}, {"pt_PT", "pt_BR"},
        {"zh-Hans-SG", "zh_CN"}, {"zh_TW|ja", "ja"},       {"C", ""},        {"", ""}};
    for (const auto &[wanted, table] : cases)
        EXPECT_EQ(TextLanguage::bestOf(QString(wanted).split(u'|')).toStdString(), table) << wanted;
    EXPECT_TRUE(TextLanguage::isKnown("en_NZ") && TextLanguage::isKnown("de_AT") && !TextLanguage::isKnown("sv"));
    EXPECT_EQ(resText(401) + TextLanguage::inUse() + TextLanguage::isolated("a"), "&Newa");
    EXPECT_EXIT(std::exit((TextLanguage::use("ar"), TextLanguage::inUse() == "ar") && resText(401) != "&New" &&
                          TextLanguage::isolated("a").size() == 3),
                testing::ExitedWithCode(1), "");
}
