#include "document/rules/file/CodePage.h"

const char *const AllNames[] = {"windows-1250", "windows-1251", "windows-1252", "windows-1253", "windows-1254",
                                "windows-1255", "windows-1256", "windows-1257", "windows-1258", "windows-874",
                                "windows-932",  "windows-936",  "windows-949",  "windows-950"};

/// No value when the character set cannot hold the text.
std::optional<QByteArray> encoded(const CodePage &codePage, const QString &text)
{
    QByteArray bytes(2 * text.size(), Qt::Uninitialized);
    const char *end = codePage.encodeTo(text, bytes.data());
    return end ? std::optional(bytes.first(end - bytes.constData())) : std::nullopt;
}

struct EveryCodePage : ::testing::TestWithParam<const char *>
{
    const CodePage m_codePage{GetParam()};
};

TEST_P(EveryCodePage, ReadsAndWritesEveryByte)
{
    ASSERT_EQ(m_codePage.name(), GetParam());
    QString letters;
    for (int byte = 0; byte < 256; ++byte) {
        const QByteArray bytes(1, char(byte));
        const QString text = m_codePage.decode(bytes);
        ASSERT_EQ(text.size(), 1) << byte;
        EXPECT_FALSE(letters.contains(text)) << byte;
        if (byte < 0x80) {
            EXPECT_EQ(text[0].unicode(), byte);
        }
        EXPECT_EQ(encoded(m_codePage, text), bytes) << byte;
        letters += text;
    }
}

TEST_P(EveryCodePage, WritesNothingThatReadsDifferently)
{
    std::minstd_rand random(7);
    int written = 0;
    for (int i = 0; i < 20000; ++i) {
        QByteArray bytes(int(random() % 8), Qt::Uninitialized);
        for (char &byte : bytes)
            byte = char(random() >> 8);
        const QString text = m_codePage.decode(bytes);
        if (const std::optional<QByteArray> again = encoded(m_codePage, text)) {
            ASSERT_EQ(m_codePage.decode(*again), text) << bytes.toHex().constData();
            ++written;
        }
    }
    EXPECT_GT(written, 10000);
    for (const QString &text : {QString("\U0001F3E0"), QString(QChar(0xD83C)), QString("a\uFFFD"), QString("\u0915")})
        EXPECT_FALSE(encoded(m_codePage, text)) << qPrintable(text);
}

INSTANTIATE_TEST_SUITE_P(CodePage, EveryCodePage, ::testing::ValuesIn(AllNames));

TEST(CodePage, LettersHaveTheirBytes)
{
    const std::tuple<const char *, QString, QByteArray> cases[] = {
        {"windows-1250", "Łódź", "\xA3\xF3\x64\x9F"},
        {"windows-1251", "Дом", "\xC4\xEE\xEC"},
        {"windows-1252", "€é\u0081\u008D\u008F\u0090\u009D", "\x80\xE9\x81\x8D\x8F\x90\x9D"},
        {"windows-1253", "Ωμή", "\xD9\xEC\xDE"},
        {"windows-1254", "ışğ", "\xFD\xFE\xF0"},
        {"windows-1255", "שלום", "\xF9\xEC\xE5\xED"},
        {"windows-1256", "بيت", "\xC8\xED\xCA"},
        {"windows-1257", "ąž", "\xE0\xFE"},
        {"windows-1258", "a\u0301đ", "\x61\xEC\xF0"},
        {"windows-874", "บ้าน", "\xBA\xE9\xD2\xB9"},
        {"windows-932", "家ソ\\~纊ｱ", "\x89\xC6\x83\x5C\x5C\x7E\xFA\x5C\xB1"},
        {"windows-936", "房子€", "\xB7\xBF\xD7\xD3\x80"},
        {"windows-949", "집똠", "\xC1\xFD\x8C\x63"},
        {"windows-950", "功許", "\xA5\x5C\xB3\x5C"},
    };
    for (const auto &[name, text, bytes] : cases) {
        const CodePage codePage(name);
        EXPECT_EQ(encoded(codePage, text).value_or("none").toHex(), bytes.toHex()) << name;
        EXPECT_EQ(codePage.decode(bytes), text) << name;
    }
    EXPECT_EQ(CodePage("no-such-set").decode("\xE9"), "é");
}

TEST(CodePage, BelongsToTheLanguage)
{
    const std::pair<const char *, const char *> cases[] = {
        {"C", "windows-1252"},          {"en_GB", "windows-1252"},      {"sv_SE", "windows-1252"},
        {"pl_PL", "windows-1250"},      {"sr_Latn_RS", "windows-1250"}, {"sr_Cyrl_RS", "windows-1251"},
        {"ru_RU", "windows-1251"},      {"el_GR", "windows-1253"},      {"tr_TR", "windows-1254"},
        {"he_IL", "windows-1255"},      {"fa_IR", "windows-1256"},      {"lt_LT", "windows-1257"},
        {"vi_VN", "windows-1258"},      {"th_TH", "windows-874"},       {"ja_JP", "windows-932"},
        {"zh_CN", "windows-936"},       {"ko_KR", "windows-949"},       {"zh_TW", "windows-950"},
        {"uz_Latn_UZ", "windows-1254"}, {"az_Cyrl_AZ", "windows-1251"}, {"hi_IN", "windows-1252"},
    };
    for (const auto &[locale, name] : cases)
        EXPECT_EQ(CodePage::nameFor(QLocale(QString::fromLatin1(locale))), name) << locale;
}
