#include "document/rules/file/VocabularyCodec.h"

#include "services/rules/CellText.h"

namespace {

using VocabularyCodec::decode;
using VocabularyCodec::DecodeResult;
using VocabularyCodec::encode;
using VocabularyCodec::Outcome;

const QByteArray Sections = "Glosaria\r\n3.1.0\r\n\r\n[Font Info]\r\n\"Arial\"\r\n10\r\n#FALSE#\r\n#FALSE#\r\n0\r\n\r\n"
                            "[Grid Info]\r\n340\r\n4000\r\n4000\r\n2\r\n\r\n";
const QByteArray Encoding = "[Encoding]\r\nUTF-8\r\n\r\n";
const QByteArray Rows = "Language 1   [0000000285]\r\nLanguage 2\r\nhouse   [0000000285]\r\nHaus\r\n"
                        "tree   [0000000285]\r\nBaum\r\n";
const QByteArray Start = Sections + "[Vocabulary]\r\n";
const QByteArray Whole = Start + Rows;

Vocabulary withRows(const std::vector<std::pair<QString, QString>> &rows)
{
    Vocabulary vocabulary;
    vocabulary.font = VocabularyFont();
    vocabulary.columnWidths = {340, 4000, 4000};
    for (const auto &[first, second] : rows)
        vocabulary.append(first, second);
    return vocabulary;
}

Vocabulary twoPairs()
{
    return withRows({{"Language 1", "Language 2"}, {"house", "Haus"}, {"tree", "Baum"}});
}

/// The whole file with one thing in it changed.
QByteArray changed(const QByteArray &what, const QByteArray &by)
{
    EXPECT_EQ(Whole.count(what), 1) << what.constData();
    return QByteArray(Whole).replace(what, by);
}

DecodeResult decodeWestern(const QByteArray &bytes)
{
    return decode(bytes, CodePage());
}

} // namespace

TEST(VocabularyCodec, FileIsExactToTheByte)
{
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(encode(twoPairs(), CodePage()), Whole);
    QLocale::setDefault(QLocale::c());
    const DecodeResult result = decodeWestern(Whole);
    EXPECT_EQ(result.outcome, Outcome::Ok);
    EXPECT_TRUE(result.vocabulary == twoPairs());
    EXPECT_EQ(decodeWestern(QByteArray(Whole).replace("\r\n", "\r")).vocabulary, twoPairs());

    Vocabulary other = twoPairs();
    other.font = VocabularyFont{"Liberation Sans", 9.75, true, true, int(0x80000008)};
    other.heights = {1, 15000000, 285};
    other.columnWidths = {0, 1, 15000000};
    const QByteArray bytes = encode(other, CodePage());
    EXPECT_TRUE(bytes.contains("\"Liberation Sans\"\r\n9.75\r\n#TRUE#\r\n#TRUE#\r\n-2147483640\r\n"));
    EXPECT_TRUE(bytes.contains("house   [0015000000]\r\n"));
    EXPECT_TRUE(decodeWestern(bytes).vocabulary == other);
}

TEST(VocabularyCodec, FontSizesAreWrittenShort)
{
    const std::pair<double, QByteArray> cases[] = {{10, "10"},       {8.25, "8.25"}, {1.0 / 3 + 12, "12.3333"},
                                                   {100000, "2048"}, {-1, "1"},      {9.99999, "10"}};
    for (const auto &[size, text] : cases) {
        Vocabulary vocabulary = twoPairs();
        vocabulary.font->size = size;
        const QByteArray bytes = encode(vocabulary, CodePage());
        EXPECT_EQ(bytes, changed("\r\n10\r\n", "\r\n" + text + "\r\n"));
        EXPECT_EQ(decodeWestern(bytes).vocabulary.font->size, text.toDouble());
    }
}

TEST(VocabularyCodec, RowsBehindTheLastFirstWordAreNotWritten)
{
    const QString word = "x";
    const QByteArray empty = encode(withRows({{{}, word}, {{}, word}}), CodePage());
    EXPECT_TRUE(empty.endsWith("4000\r\n0\r\n\r\n[Vocabulary]\r\n   [0000000285]\r\nx\r\n"));
    const QByteArray gap = encode(withRows({{word, word}, {{}, {}}, {word, {}}, {{}, word}}), CodePage());
    EXPECT_TRUE(gap.endsWith("4000\r\n2\r\n\r\n[Vocabulary]\r\nx   [0000000285]\r\nx\r\n   [0000000285]\r\n\r\n"
                             "x   [0000000285]\r\n\r\n"));
    EXPECT_TRUE(encode(Vocabulary(), CodePage()).endsWith("0\r\n\r\n[Vocabulary]\r\n"));
}

TEST(VocabularyCodec, LineBreaksInWordsBecomeBlanks)
{
    const QString text = "a\r\nb\nc\rd";
    EXPECT_EQ(decodeWestern(encode(withRows({{text, text}}), CodePage())).vocabulary,
              withRows({{"a b c d", "a b c d"}}));
    EXPECT_EQ(decodeWestern(Start + "a\nb   [0000000285]\r\n\nc\r\n").vocabulary, withRows({{"a b", " c"}}));
}

TEST(VocabularyCodec, WrongFilesAreRefused)
{
    std::vector<std::pair<QByteArray, Outcome>> cases = {
        {"", Outcome::BadFormat},
        {changed("Glosaria", "glosaria"), Outcome::BadFormat},
        {changed("Glosaria", "Glosaria "), Outcome::BadFormat},
        {"\xEF\xBB\xBF" + Whole, Outcome::BadFormat},
        {QByteArray(Whole).replace("\r\n", "\n"), Outcome::BadFormat},
        {changed("3.1.0", "4.0.0"), Outcome::NewerVersion},
        {"Glosaria", Outcome::Failed},
        {Whole + "lonely", Outcome::Failed},
        {Whole + "\r\n", Outcome::Failed},
        {Sections + "[Encoding]\r\nUTF-7\r\n\r\n[Vocabulary]\r\n" + Rows, Outcome::Failed},
        {Start + QByteArray(10000000, '\r'), Outcome::TooManyRows},
    };
    // what stands in a proper file, and what instead of it in one that cannot be read
    for (const QByteArray change :
         {"3.1.0 -> ", "3.1.0 -> x3", "[Font Info] -> [Font info]", "[Vocabulary] -> [Vocabulary] ",
          "\r\n10\r\n -> \r\nten\r\n", "\r\n10\r\n -> \r\n0\r\n", "\r\n10\r\n -> \r\n2048.5\r\n",
          "\r\n10\r\n -> \r\nnan\r\n", "#FALSE#\r\n#FALSE# -> #FALSE#\r\nFALSE", "#\r\n0\r\n -> #\r\n2147483648\r\n",
          "340 -> -1", "340 -> 15000001", "4000\r\n4000 -> 4000\r\n-1", "house   [0000000285] -> house   [0015000001]",
          "house   [0000000285] -> house   [00000x0285]", "house   [0000000285] -> house   [285]"}) {
        const qsizetype arrow = change.indexOf(" -> ");
        cases.emplace_back(changed(change.left(arrow), change.mid(arrow + 4)), Outcome::Failed);
    }
    for (const auto &[bytes, outcome] : cases) {
        const DecodeResult result = decodeWestern(bytes);
        EXPECT_EQ(result.outcome, outcome) << bytes.left(1000).constData();
        EXPECT_TRUE(result.vocabulary == Vocabulary());
    }
}

TEST(VocabularyCodec, OlderFilesHoldOnlyRows)
{
    const DecodeResult result =
        decodeWestern("Glosaria\r\n2\r\nOne\r\nTwo\r\n[Encoding]\r\nHaus\r\na   [0000000300]\r\nb");
    EXPECT_EQ(result.outcome, Outcome::Ok);
    EXPECT_TRUE(result.olderVersion);
    EXPECT_FALSE(result.vocabulary.font || result.vocabulary.columnWidths);
    EXPECT_EQ(result.vocabulary.first.front(), "One");
    EXPECT_EQ(result.vocabulary.second.back(), "b");
    EXPECT_EQ(result.vocabulary.heights, (std::vector<int>{285, 285, 300}));
}

TEST(VocabularyCodec, SectionsMayBeMissingOrStandAmongOthers)
{
    const Vocabulary bare = decodeWestern(Start.left(Start.indexOf("[Grid")) + "[Vocabulary]\r\n" + Rows).vocabulary;
    EXPECT_TRUE(bare.rows() == 3 && bare.font && !bare.columnWidths);
    for (const QByteArray &bytes : {changed("[Font Info]", "[Other]\r\n1\r\n[Font Info]"),
                                    changed("[Vocabulary]", "[Font Info]\r\nx\r\n\r\n[Vocabulary]")})
        EXPECT_TRUE(decodeWestern(bytes).vocabulary == twoPairs()) << bytes.constData();
    EXPECT_EQ(decodeWestern(Start).outcome, Outcome::Ok);
}

TEST(VocabularyCodec, HeightMarkers)
{
    const std::tuple<QByteArray, QString, int> cases[] = {
        {"", QString(), 285},
        {"a]", "a]", 285},
        {"a [0000000300]", "a [0000000300]", 285},
        {"a   [0000000300", "a   [0000000300", 285},
        {"a   [0000000300]", "a", 300},
        {"follows", "follows", 300},
        {"a    [0000000310]", "a ", 310},
        {"a   [0000000320] b   [0000000330]", "a", 320},
        {"a]   [0000000340]", "a]", 340},
        {"a   [b   [0000000345]", "a", 345},
        {"a   [   [0000000346]", "a", 346},
        {"a   [00000003505]", "a", 350},
        {"   [0000000000]", QString(), 285},
    };
    QByteArray bytes = Start;
    for (const auto &[line, word, height] : cases)
        bytes += line + "\r\nx   [y]\r\n";
    const DecodeResult result = decodeWestern(bytes);
    ASSERT_EQ(result.vocabulary.rows(), qsizetype(std::size(cases)));
    for (size_t i = 0; i < std::size(cases); ++i) {
        const auto &[line, word, height] = cases[i];
        EXPECT_EQ(result.vocabulary.first[i], word) << line.constData();
        EXPECT_EQ(result.vocabulary.heights[i], height) << line.constData();
        EXPECT_EQ(result.vocabulary.second[i], "x   [y]");
    }
    // The last byte of this letter is that of the closing bracket.
    const DecodeResult japanese = decode(QByteArray(Start + "a   [x\x83\x5D\r\nb\r\n"), CodePage("windows-932"));
    EXPECT_EQ(japanese.vocabulary.first, std::vector<QString>{"a   [xゾ"});
}

TEST(VocabularyCodec, NoLetterIsLost)
{
    const std::tuple<const char *, QString, bool> cases[] = {
        {"windows-1252", "café €", false},
        {"windows-1252", "Ã©", true},
        {"windows-1252", "Ã© é", false},
        {"windows-1252", "Дом", true},
        {"windows-1251", "Дом", false},
        {"windows-1252", "\U0001F3E0 e\u0301 בית \uFEFF", true},
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
        const QByteArray declaration = "4000\r\n1\r\n\r\n" + Encoding + "[Vocabulary]\r\n";
        EXPECT_EQ(bytes.contains(declaration), declared) << qPrintable(text);
        EXPECT_EQ(bytes.contains("Encoding"), declared);
        EXPECT_TRUE(decode(bytes, codePage).vocabulary == vocabulary) << qPrintable(text);
    }
}

TEST(VocabularyCodec, EncodingIsRecognised)
{
    const std::pair<QByteArray, QString> cases[] = {
        {Start + "caf\xC3\xA9\r\nx", "café"},
        {Start + "caf\xE9\r\nx", "café"},
        {Start + "caf\xC3\xA9\r\n\xE9", "cafÃ©"},
        {Sections + Encoding + "[Vocabulary]\r\ncaf\xC3\xA9\r\n\xE9", "café"},
        {Sections + Encoding + "[Vocabulary]\r\ncaf\xE9\r\n\xC3\xA9", "café"},
        {"Glosaria\r\n2\r\n\xD0\xB4\r\nx", "д"},
    };
    for (const auto &[bytes, word] : cases)
        EXPECT_EQ(decodeWestern(bytes).vocabulary.first, std::vector<QString>{word}) << bytes.constData();
}

TEST(VocabularyCodec, EveryLetterComesBack)
{
    Vocabulary vocabulary = withRows({});
    for (int c = 1; c < 0x10000; ++c) {
        if (CellText::cleaned(QChar(c)) == QChar(c)) // else no cell holds it
            vocabulary.append(QString(QChar(c)), QChar(c) + QString("]"));
    }
    EXPECT_TRUE(decodeWestern(encode(vocabulary, CodePage())).vocabulary == vocabulary);
}

TEST(VocabularyCodec, ProgressIsToldInModerationUpToTheEnd)
{
    Vocabulary vocabulary = withRows({{QString(1 << 20, QChar(0xE9)), "x"}});
    for (int i = 0; i < 100000; ++i)
        vocabulary.append(QString::number(i), QString());
    std::vector<qint64> steps;
    const auto progress = [&steps](qint64 done) { steps.push_back(done); };
    const QByteArray bytes = encode(vocabulary, CodePage(), progress);
    EXPECT_NEAR(double(steps.back()), double(vocabulary.rows()), 1000);
    EXPECT_TRUE(decode(bytes, CodePage(), progress).vocabulary == vocabulary);
    EXPECT_NEAR(double(steps.back()) / double(bytes.size()), 0.9, 0.1);
    EXPECT_LE(steps.size(), 200u);
}
