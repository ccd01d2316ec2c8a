#include "document/rules/file/CodePage.h"
#include "document/rules/file/Utf8Text.h"

/// No value when the character set cannot hold the text.
std::optional<QByteArray> encoded(const CodePage &codePage, const QString &text)
{
    QByteArray bytes(2 * text.size(), Qt::Uninitialized);
    const char *end = codePage.encodeTo(text, bytes.data());
    return end ? std::optional(bytes.first(end - bytes.constData())) : std::nullopt;
}

TEST(CodePage, ReadsWhatItWritesAndBelongsToLanguages)
{
    // a character set, a word, its bytes, and whose set it is
    const QString sets = readFile(SOURCE_FOLDER "/tests/document/rules/data/code_pages.txt");
    for (const QString &each : sets.split('\n', Qt::SkipEmptyParts)) {
        const QByteArray name = each.section('|', 0, 0).toLatin1(),
                         itsBytes = QByteArray::fromHex(each.section('|', 2, 2).toLatin1());
        const QString word = each.section('|', 1, 1);
        const CodePage codePage(name);
        EXPECT_EQ(codePage.name(), name);
        EXPECT_EQ(encoded(codePage, word).value_or("none").toHex(), itsBytes.toHex()) << name.data();
        EXPECT_EQ(codePage.decode(itsBytes), word) << name.data();
        for (const QString &locale : each.section('|', 3).split(' '))
            EXPECT_EQ(CodePage::nameFor(QLocale(locale)), name) << locale.toStdString();
        QString letters;
        for (int byte = 0; byte < 256; ++byte) {
            const QByteArray bytes(1, char(byte));
            const QString text = codePage.decode(bytes);
            EXPECT_TRUE(text.size() == 1 && !letters.contains(text)) << name.data() << byte;
            EXPECT_TRUE(byte >= 0x80 || text == QString(QChar(byte))) << name.data() << byte;
            EXPECT_EQ(encoded(codePage, text), bytes) << name.data() << byte;
            letters += text;
        }
        std::minstd_rand random(7);
        int written = 0; // and never what reads differently
        for (int i = 0; i < 20000; ++i) {
            QByteArray bytes(int(random() % 8), Qt::Uninitialized);
            for (char &byte : bytes)
                byte = char(random() >> 8);
            const QString text = codePage.decode(bytes);
            const std::optional<QByteArray> again = encoded(codePage, text);
            written += again.has_value();
            EXPECT_EQ(again ? codePage.decode(*again) : text, text) << name.data() << bytes.toHex().constData();
        }
        EXPECT_GT(written, 10000) << name.data();
        for (const QString &text :
             {QString("\U0001F3E0"), QString(QChar(0xD83C)), QString("a\uFFFD"), QString("\u0915")})
            EXPECT_FALSE(encoded(codePage, text)) << name.data() << qPrintable(text);
    }
    EXPECT_EQ(CodePage("windows-1252").decode("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
    EXPECT_EQ(CodePage("no-such-set").decode("\xE9"), "é");
}

TEST(Utf8Text, ReadsUtf8WithLoneSurrogatesAndNothingElse)
{
    const QRegularExpression utf8(R"(^([\x00-\x7F]|[\xC2-\xDF][\x80-\xBF]|(\xE0[\xA0-\xBF]|[\xE1-\xEF][\x80-\xBF]))"
                                  R"([\x80-\xBF]|(\xF0[\x90-\xBF]|[\xF1-\xF3][\x80-\xBF]|\xF4[\x80-\x8F]))"
                                  R"([\x80-\xBF]{2})*$)");
    const QByteArray signs("a\x7F\x80\x9F\xA0\xBF\xC0\xC2\xDF\xE0\xE1\xED\xED\xED\xEF\xF0\xF1\xF4\xF5\xBB");
    std::minstd_rand random(9);
    for (int i = 0; i < 100000; ++i) {
        QByteArray bytes(int(random() % 7), Qt::Uninitialized);
        for (char &byte : bytes)
            byte = signs[int(random() >> 8) % signs.size()];
        const std::optional<QString> text = Utf8Text::decode(bytes);
        EXPECT_EQ(text.has_value(), utf8.match(QString::fromLatin1(bytes)).hasMatch()) << bytes.toHex().constData();
        if (!text)
            continue;
        QByteArray again(text->size() * Utf8Text::BytesPerChar, Qt::Uninitialized);
        again.truncate(Utf8Text::encodeTo(*text, again.data()) - again.constData());
        EXPECT_EQ(Utf8Text::decode(again), text) << bytes.toHex().constData();
    }
}
