#include "document/rules/file/VocabularyCodec.h"

#include "services/rules/CellText.h"

namespace {

using namespace VocabularyCodec;
using Pairs = std::vector<std::pair<QString, QString>>;

const QByteArray Sections = "Glosaria\r\n3.1.0\r\n\r\n[Font Info]\r\n\"Arial\"\r\n10\r\n#FALSE#\r\n#FALSE#\r\n0\r\n\r\n"
                            "[Grid Info]\r\n340\r\n4000\r\n4000\r\n2\r\n\r\n";
const QByteArray Encoding = "[Encoding]\r\nUTF-8\r\n\r\n";
const QByteArray Rows = "Language 1   [0000000285]\r\nLanguage 2\r\nhouse   [0000000285]\r\nHaus\r\n"
                        "tree   [0000000285]\r\nBaum\r\n";
const QByteArray Start = Sections + "[Vocabulary]\r\n";
const QByteArray Whole = Start + Rows;

Vocabulary withRows(const Pairs &rows)
{
    Vocabulary vocabulary;
    vocabulary.font = VocabularyFont();
    vocabulary.columnWidths = {340, 4000, 4000};
    for (const auto &[first, second] : rows)
        vocabulary.append(first, second);
    return vocabulary;
}

const Vocabulary TwoPairs = withRows({{"Language 1", "Language 2"}, {"house", "Haus"}, {"tree", "Baum"}});

/// The whole file with one thing in it changed.
QByteArray changed(const QByteArray &what, const QByteArray &by)
{
    EXPECT_EQ(Whole.count(what), 1) << what.constData();
    return QByteArray(Whole).replace(what, by);
}

Vocabulary read(const QByteArray &bytes)
{
    return decode(bytes, CodePage()).vocabulary;
}

} // namespace

TEST(VocabularyCodec, FileIsExactToTheByte)
{
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(encode(TwoPairs, CodePage()), Whole);
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(read(Whole), TwoPairs);

    Vocabulary other = TwoPairs;
    other.font = VocabularyFont{"Liberation Sans", 9.75, true, true, int(0x80000008)};
    other.heights = {1, 15000000, 9876543};
    other.columnWidths = {0, 1, 15000000};
    const QByteArray bytes = encode(other, CodePage());
    EXPECT_TRUE(bytes.contains("\"Liberation Sans\"\r\n9.75\r\n#TRUE#\r\n#TRUE#\r\n-2147483640\r\n"));
    EXPECT_TRUE(bytes.contains("house   [0015000000]\r\n"));
    EXPECT_EQ(read(bytes), other);
    Vocabulary beyond = other, bare = TwoPairs; // what no reader would accept, and what came from an older file
    beyond.heights[1] = 15000001;
    beyond.columnWidths = {-1, 1, 15000001};
    EXPECT_EQ(encode(beyond, CodePage()), bytes);
    beyond.heights[0] = -1;
    EXPECT_TRUE(encode(beyond, CodePage()).contains("Language 1   [0000000000]\r\n"));
    bare.font.reset(), bare.columnWidths.reset();
    EXPECT_EQ(encode(bare, CodePage()), Whole);
    const std::pair<double, QByteArray> sizes[] = {{10, "10"},       {8.25, "8.25"}, {1.0 / 3 + 12, "12.3333"},
                                                   {100000, "2048"}, {-1, "1"},      {9.99999, "10"}};
    for (const auto &[size, written] : sizes) {
        Vocabulary vocabulary = TwoPairs;
        vocabulary.font->size = size;
        EXPECT_EQ(encode(vocabulary, CodePage()), changed("\r\n10\r\n", "\r\n" + written + "\r\n"));
        EXPECT_EQ(read(encode(vocabulary, CodePage())).font->size, written.toDouble());
    }
    const QString text = "a\r\nb\nc\rd";
    EXPECT_EQ(read(encode(withRows({{text, text}}), CodePage())), withRows({{"a b c d", "a b c d"}}));
}

TEST(VocabularyCodec, TellsHowFarItHasCome)
{
    std::vector<qint64> told;
    const auto tell = [&told](qint64 done) { told.push_back(done); };
    const Vocabulary words = withRows(Pairs(1104, {"ab", "c"}));
    const QByteArray bytes = encode(words, CodePage(), tell);
    decode(bytes, CodePage(), tell);
    ASSERT_EQ(told.size(), 92u + 78u);
    EXPECT_EQ((std::array{told[0], told[91]}), (std::array<qint64, 2>{12, 1104})) << "rows";
    EXPECT_EQ((std::array{told[92], told[169]}), (std::array<qint64, 2>{14 * 18, 78 * 14 * 18})) << "bytes of words";
}

TEST(VocabularyCodec, RowsBehindTheLastFirstWordAreNotWritten)
{
    const std::pair<Pairs, QByteArray> cases[] = {
        {{}, "0\r\n\r\n[Vocabulary]\r\n"},
        {{{"", "x"}, {"", "x"}}, "4000\r\n0\r\n\r\n[Vocabulary]\r\n   [0000000285]\r\nx\r\n"},
        {{{"x", "x"}, {"", ""}, {"x", ""}, {"", "x"}},
         "4000\r\n2\r\n\r\n[Vocabulary]\r\nx   [0000000285]\r\nx\r\n   [0000000285]\r\n\r\nx   [0000000285]\r\n\r\n"}};
    for (const auto &[rows, end] : cases)
        EXPECT_TRUE(encode(withRows(rows), CodePage()).endsWith(end)) << end.constData();
}

TEST(VocabularyCodec, WrongFilesAreRefused)
{
    std::vector<std::pair<QByteArray, Outcome>> cases = {
        {"", Outcome::BadFormat},
        {changed("Glosaria", "glosaria"), Outcome::BadFormat},
        {changed("Glosaria", "Glosaria "), Outcome::BadFormat},
        {"\xEF\xBB\xBF" + Whole, Outcome::BadFormat},
        {QByteArray(Whole).replace("\r\n", "\n"), Outcome::BadFormat},
        {Start + QByteArray(10000000, '\r'), Outcome::TooManyRows},
    };
    for (const char *end :
         {"[Font", "\"Arial", "10\r\n#", "#FALSE#\r\n#", "#FALSE#\r\n0", "0\r\n\r\n[G", "4000\r\n4000", "2\r\n\r\n[V"})
        cases.emplace_back(Whole.first(Whole.indexOf(end)), Outcome::Failed); // cut off before it
    // what stands in a proper file, and what instead of it in one that cannot be read; ~ is a line end
    const QByteArray changes =
        readFile(SOURCE_FOLDER "/tests/document/rules/data/wrong_files.txt").replace('~', "\r\n");
    for (const QByteArray &change : changes.chopped(1).split('|')) {
        const qsizetype arrow = change.indexOf(" -> ");
        cases.emplace_back(changed(change.left(arrow), change.mid(arrow + 4)), Outcome::Failed);
    }
    for (const auto &[bytes, outcome] : cases) {
        const DecodeResult result = decode(bytes, CodePage());
        EXPECT_EQ(result.outcome, outcome) << bytes.left(1000).constData();
        EXPECT_EQ(result.vocabulary, Vocabulary());
    }
    for (int c = 0; c < 256; ++c) { // the first sign of the version
        const auto [outcome, older] = readHeader("Glosaria\r" + QByteArray(1, char(c)));
        EXPECT_EQ(outcome, c < '0' || c > '9' ? Outcome::Failed : c > '3' ? Outcome::NewerVersion : Outcome::Ok) << c;
        EXPECT_EQ(older, c >= '0' && c < '3') << c;
    }
    EXPECT_EQ(decode(changed("3.1.0", "4.0.0"), CodePage()).outcome, Outcome::NewerVersion);
    EXPECT_EQ(decode(Start + QByteArray(9999998, '\r'), CodePage()).outcome, Outcome::Ok) << "as many as there can be";
}

TEST(VocabularyCodec, OlderFilesHoldOnlyRows)
{
    const QByteArray older = "Glosaria\r\n2\r\n\xD0\xB4\r\nTwo\r\n[Encoding]\r\nHaus\r\na   [0000000300]\r\nb";
    const auto [outcome, isOlder, vocabulary] = decode(older, CodePage());
    EXPECT_TRUE(outcome == Outcome::Ok && isOlder);
    Vocabulary expected = withRows({{"д", "Two"}, {"[Encoding]", "Haus"}, {"a", "b"}});
    expected.font.reset();
    expected.columnWidths.reset();
    expected.heights.back() = 300;
    EXPECT_EQ(vocabulary, expected);
}

TEST(VocabularyCodec, SectionsLineEndsAndLettersMayDiffer)
{
    const std::pair<QByteArray, Vocabulary> cases[] = {
        {Start, withRows({})},
        {QByteArray(Whole).replace("\r\n", "\r"), TwoPairs},
        {changed("[Font Info]", "[Other]\r\n1\r\n[Font Info]"), TwoPairs},
        {changed("[Vocabulary]", "[Font Info]\r\nx\r\n\r\n[Vocabulary]"), TwoPairs},
        {Start + "a\nb   [0000000285]\r\n\nc\r\n", withRows({{"a b", " c"}})},
        {Start + "caf\xC3\xA9\r\nx", withRows({{"café", "x"}})},
        {Start + "caf\xE9\r\nx", withRows({{"café", "x"}})},
        {Start + "caf\xC3\xA9\r\n\xE9", withRows({{"cafÃ©", "é"}})},
        {Sections + Encoding + "[Vocabulary]\r\ncaf\xC3\xA9\r\n\xE9", withRows({{"café", "é"}})},
        {Sections + "[Encoding]\r\nutf-8\r\n[Vocabulary]\r\ncaf\xE9\r\n\xC3\xA9", withRows({{"café", "é"}})},
    };
    for (const auto &[bytes, vocabulary] : cases)
        EXPECT_EQ(read(bytes), vocabulary) << bytes.constData();
    for (const auto &[line, name] :
         {std::pair("x", "x"), {"\"", "\""}, {"\"x", "\"x"}, {"x\"", "x\""}, {"\"\"", ""}, {" \"x\" ", "x"}})
        EXPECT_EQ(read(changed("\"Arial\"", line)).font->name, name);
    const Vocabulary bare = read(Start.left(Start.indexOf("[Grid")) + "[Vocabulary]\r\n" + Rows);
    EXPECT_TRUE(bare.rows() == 3 && bare.font && !bare.columnWidths);
}

TEST(VocabularyCodec, HeightMarkers)
{
    // a line of the file, its word and its row's height, which holds for the rows that follow as well
    const QString cases = readFile(SOURCE_FOLDER "/tests/document/rules/data/height_markers.txt");
    QByteArray bytes = Start;
    Vocabulary expected = withRows({});
    for (const QString &line : cases.split('\n', Qt::SkipEmptyParts)) {
        bytes += line.section(" -> ", 0, 0).toLatin1() + "\r\nx   [y]\r\n";
        expected.append(line.section(" -> ", 1).section(':', 0, 0), "x   [y]", line.section(':', -1).toInt());
    }
    EXPECT_EQ(read(bytes), expected);
    // The last byte of this letter is that of the closing bracket.
    const DecodeResult japanese = decode(QByteArray(Start + "a   [x\x83\x5D\r\nb\r\n"), CodePage("windows-932"));
    EXPECT_EQ(japanese.vocabulary, withRows({{"a   [xゾ", "b"}}));
}

TEST(VocabularyCodec, NoLetterIsLost)
{
    const std::tuple<const char *, QString, bool> cases[] = {
        {"windows-1252", "café €", false},
        {"windows-1252", "Ã©", true},
        {"windows-1252", "Ã© é", false},
        {"windows-1252", "Дом\U0001F3E0", true},
        {"windows-1251", "Дом", false},
        {"windows-1252", "\U00010000\U0010FFFD e\u0301 בית \uFEFF", true},
        {"windows-1252", "\uFEFF\uFEFFa", true},
        {"windows-1252", QStringLiteral("a\u0000b"), false},
        {"windows-1252", QChar(0xD83C) + QString("é\uFFFE") + QChar(0xDF00), true},
        {"windows-1255", "שלום", false},
        {"windows-932", "家ソ]", false},
        {"windows-932", QString("\u0083") + "]é", true},
    };
    for (const auto &[name, text, declared] : cases) {
        const CodePage codePage(name);
        Vocabulary vocabulary = withRows({{text, "plain"}, {"x", text}});
        vocabulary.font->name = text;
        const QByteArray bytes = encode(vocabulary, codePage);
        EXPECT_EQ(bytes.contains("4000\r\n1\r\n\r\n" + Encoding + "[Vocabulary]\r\n"), declared) << qPrintable(text);
        EXPECT_EQ(bytes.contains("Encoding"), declared);
        EXPECT_TRUE(!declared || !text.isValidUtf16() || bytes.contains(text.toUtf8()));
        EXPECT_EQ(decode(bytes, codePage).vocabulary, vocabulary) << qPrintable(text);
    }
    Vocabulary all = withRows({});
    for (int c = 1; c < 0x10000; ++c) {
        if (CellText::cleaned(QChar(c)) == QChar(c)) // else no cell holds it
            all.append(QString(QChar(c)), QChar(c) + QString("]"));
    }
    EXPECT_TRUE(read(encode(all, CodePage())) == all);
}
