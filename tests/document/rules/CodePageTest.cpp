#include "document/rules/file/CodePage.h"

/// The character sets: a word, its bytes, and whose set it is.
const std::tuple<const char *, QString, QByteArray, QString> Sets[] = {
    {"windows-1250", "Łódź\u00A0", "\xA3\xF3\x64\x9F\xA0", "pl_PL sr_Latn_RS"},
    {"windows-1251", "Дом", "\xC4\xEE\xEC", "ru_RU sr_Cyrl_RS az_Cyrl_AZ"},
    {"windows-1252", "€é\u0081\u008D\u008F\u0090\u009D", "\x80\xE9\x81\x8D\x8F\x90\x9D", "C en_GB sv_SE hi_IN"},
    {"windows-1253", "Ωμή", "\xD9\xEC\xDE", "el_GR"},
    {"windows-1254", "ışğ", "\xFD\xFE\xF0", "tr_TR uz_Latn_UZ"},
    {"windows-1255", "שלום", "\xF9\xEC\xE5\xED", "he_IL"},
    {"windows-1256", "بيت", "\xC8\xED\xCA", "fa_IR"},
    {"windows-1257", "ąž", "\xE0\xFE", "lt_LT"},
    {"windows-1258", "a\u0301đ", "\x61\xEC\xF0", "vi_VN"},
    {"windows-874", "บ้าน", "\xBA\xE9\xD2\xB9", "th_TH"},
    {"windows-932", "家ソ\\~纊ｱ", "\x89\xC6\x83\x5C\x5C\x7E\xFA\x5C\xB1", "ja_JP"},
    {"windows-936", "房子€", "\xB7\xBF\xD7\xD3\x80", "zh_CN"},
    {"windows-949", "집똠", "\xC1\xFD\x8C\x63", "ko_KR"},
    {"windows-950", "功許", "\xA5\x5C\xB3\x5C", "zh_TW"},
};

/// No value when the character set cannot hold the text.
std::optional<QByteArray> encoded(const CodePage &codePage, const QString &text)
{
    QByteArray bytes(2 * text.size(), Qt::Uninitialized);
    const char *end = codePage.encodeTo(text, bytes.data());
    return end ? std::optional(bytes.first(end - bytes.constData())) : std::nullopt;
}

TEST(CodePage, ReadsWhatItWritesAndBelongsToLanguages)
{
    for (const auto &[name, word, itsBytes, locales] : Sets) {
        const CodePage codePage(name);
        EXPECT_EQ(codePage.name(), name);
        EXPECT_EQ(encoded(codePage, word).value_or("none").toHex(), itsBytes.toHex()) << name;
        EXPECT_EQ(codePage.decode(itsBytes), word) << name;
        for (const QString &locale : locales.split(' '))
            EXPECT_EQ(CodePage::nameFor(QLocale(locale)), name) << locale.toStdString();
        QString letters;
        for (int byte = 0; byte < 256; ++byte) {
            const QByteArray bytes(1, char(byte));
            const QString text = codePage.decode(bytes);
            EXPECT_TRUE(text.size() == 1 && !letters.contains(text)) << name << byte;
            EXPECT_TRUE(byte >= 0x80 || text == QString(QChar(byte))) << name << byte;
            EXPECT_EQ(encoded(codePage, text), bytes) << name << byte;
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
            EXPECT_EQ(again ? codePage.decode(*again) : text, text) << name << bytes.toHex().constData();
        }
        EXPECT_GT(written, 10000) << name;
        for (const QString &text :
             {QString("\U0001F3E0"), QString(QChar(0xD83C)), QString("a\uFFFD"), QString("\u0915")})
            EXPECT_FALSE(encoded(codePage, text)) << name << qPrintable(text);
    }
    EXPECT_EQ(CodePage("no-such-set").decode("\xE9"), "é");
}
