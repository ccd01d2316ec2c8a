#include "ListFixtures.h"

#include "exchange/rules/cards/MarkupText.h"
#include "exchange/rules/text/DelimitedText.h"
#include "exchange/rules/text/TextEncoding.h"

TEST(TextLists, TellsWhatStandsBetweenTheWords)
{
    const std::pair<const char *, QStringList> cases[] = {
        {"house - Haus\nthe well-being – das Wohl\na — b\nalone\n",
         {"|", "house|Haus", "the well-being|das Wohl", "a|b", "alone|"}},
        {"a, b - c, d\ne - f, g\n", {"|", "a, b|c, d", "e|f, g"}},
        {"a = b\nc=d = e\n", {"|", "a|b", "c|d = e"}},
        {"to run, fast;laufen\nhouse;Haus\n", {"|", "to run, fast|laufen", "house|Haus"}},
        {"house,Haus\n\"to run, fast\",laufen\n", {"|", "house|Haus", "to run, fast|laufen"}},
        {"\n\nEnglish\tGerman\nhouse\tHaus\n", {"English|German", "house|Haus"}},
        {"español,Deutsch\na,b\n", {"español|Deutsch", "a|b"}},
        {"Language 1,Language 2\na,b\n", {"Language 1|Language 2", "a|b"}},
        {"house\nHaus\n", {"|", "house|", "Haus|"}},
        {"\tx\ty\n\tz\tw\n", {"|", "x|y", "z|w"}},
        {"#separator: Semicolon\n#html:false\n#tags column:3\n#columns:A;B\na;<b>;t\n", {"A|B", "a|<b>"}},
        {"#separator:pipe\n#tags:x\n#deck:y\na;b|c\nd;e|f\n", {"|", "a;b|c", "d;e|f"}},
        {"english,b\na,German\n", {"|", "english|b", "a|German"}},
        {"#separator:tab\n#html:true\n#guid column:1\n#columns:id\tFront\tBack\n1\t<b>a</b>\tb&eacute;\n",
         {"Front|Back", "a|bé"}},
        {"#1\tone\n#2\ttwo\n", {"|", "#1|one", "#2|two"}},
        {"a<br>b\tc\n", {"|", "a b|c"}},
        {"a < b\tc & d\n", {"|", "a < b|c & d"}}};
    for (const auto &[text, words] : cases)
        EXPECT_EQ(pairsOf(QByteArray(text)), words) << text;
    EXPECT_EQ(DelimitedText::separatorOf(QString("alone\n").repeated(99) + "a;b\n"), ";");
}

TEST(TextLists, ReadsEveryCharacterSet)
{
    const QString german = "Straße\tstreet\nMädchen\tgirl\nschön\tbeautiful\nfür\tfor\nGröße\tsize\n";
    const QString russian = "дом\thouse\nулица\tstreet\nкрасивый\tbeautiful\nмаленькая девочка\tlittle girl\n"
                            "собака\tdog\nдерево\ttree\nмолоко\tmilk\nшкола\tschool\nучитель\tteacher\nокно\twindow\n";
    const std::tuple<QString, const char *, const char *> cases[] = {
        {german, "UTF-8", "UTF-8"},        {german, "windows-1252", "windows-1252"},
        {german, "UTF-16LE", "UTF-16LE"},  {german, "UTF-16BE", "UTF-16BE"},
        {russian, "UTF-16LE", "UTF-16LE"}, {russian, "windows-1251", "windows-1251"},
        {russian, "KOI8-R", "KOI8-R"},     {russian, "UTF-8", "UTF-8"}};
    for (const auto &[text, written, told] : cases) {
        QStringEncoder encoder(written);
        const QByteArray bytes = encoder(text);
        EXPECT_EQ(TextEncoding::detect(bytes, "windows-1252").toStdString(), told);
        EXPECT_EQ(TextEncoding::decode(bytes, told), text);
    }
    EXPECT_EQ(pairsOf("\xEF\xBB\xBF"
                      "a,b\n"),
              QStringList({"|", "a|b"}));
    EXPECT_EQ(pairsOf(QByteArray("\xFF\xFE"
                                 "a\0\t\0b\0",
                                 8)),
              QStringList({"|", "a|b"}));
    EXPECT_EQ(TextEncoding::decode("\xE9", "no character set"), "é");
    EXPECT_EQ(TextEncoding::decode("\x84\x31\x95\x33-", "GB18030"), "-");
    for (const QByteArray &name : TextEncoding::known())
        EXPECT_TRUE(QStringDecoder(name.constData()).isValid()) << name.toStdString();
}

TEST(MarkupText, ShowsWhatAReaderSees)
{
    const QString cases = "<div>a</div><div>b</div >c => a b c~~x<sup>2</sup> &lt; y &amp;&nbsp;z => x2 < y & z~~"
                          "caf&eacute; &#233; &#xE9; &yuml; &unknown; &#xD800; => café é é ÿ &unknown; &#xD800;~~"
                          "a [sound:a.mp3] b [x] => a b [x]~~"
                          "{{c1::Haus::what}} and {{c2::b}} {{x}} {{cd}} => Haus and b {{x}} d~~"
                          "a<!-- <b> -->b<style>p { }</style>c => abc~~"
                          "1 < 2 and a <b and <c => 1 < 2 and a <b and <c~~< => <~~& => &";
    for (const QString &each : cases.split("~~"))
        EXPECT_EQ(MarkupText::plain(each.section(" => ", 0, 0)), each.section(" => ", 1)) << each.toStdString();
}
