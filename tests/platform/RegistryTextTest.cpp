#include "platform/RegistryText.h"

#include <QRandomGenerator>

namespace {

/// Letters that a text form could stumble over.
QString nastyText(QRandomGenerator &random)
{
    static const char16_t Letters[] = {u'a', u'"', u'\\', u'\n',  u'\r',  u'\t',  u' ',   0,      1,      0x7f,
                                       0x85, u'=', u'u',  0xd800, 0xdc00, 0x2028, 0xfeff, 0xffff, 0x65e5, u'é'};
    QString text;
    for (int i = random.bounded(8); i > 0; --i)
        text += QChar(Letters[random.bounded(int(std::size(Letters)))]);
    return text;
}

RegistryValue nastyValue(QRandomGenerator &random)
{
    switch (random.bounded(6)) {
    case 0:
        return {RegistryType::Binary, nastyText(random).toUtf8()};
    case 1:
        return {RegistryType::Number, random.generate()};
    case 2:
        return {RegistryType::BigEndianNumber, random.generate()};
    case 3:
        return {RegistryType::StringList, QStringList({nastyText(random), nastyText(random)})};
    case 4:
        return {RegistryType::StringList, QStringList()};
    default:
        return {RegistryType::ExpandString, nastyText(random)};
    }
}

RegistryTree nastyTree(QRandomGenerator &random)
{
    RegistryTree tree;
    for (int i = random.bounded(6); i > 0; --i) {
        const int root = random.bounded(2) ? HKEY_CLASSES_ROOT : HKEY_CURRENT_USER;
        tree.setValue(root, nastyText(random), nastyText(random), nastyValue(random));
    }
    return tree;
}

} // namespace

TEST(RegistryText, NothingIsLost)
{
    QRandomGenerator random(7);
    for (int i = 0; i < 3000; ++i) {
        const RegistryTree tree = nastyTree(random);
        const QByteArray text = RegistryText::write(tree);
        const std::optional<RegistryTree> back = RegistryText::read(text);
        ASSERT_TRUE(back.has_value()) << text.constData();
        ASSERT_TRUE(*back == tree) << text.constData();
    }
}

TEST(RegistryText, WhatAUserWroteByHandIsRead)
{
    const auto tree = RegistryText::read("Glosaria registry 1\r\n\r\nHKEY_CURRENT_USER   \"Software\\\\Glosaria\"\r\n"
                                         "\"Name\"  =  string  \"a b\" \r\n\"N\" = number 12\r\nend\r\n");
    ASSERT_TRUE(tree.has_value());
    const QString key = QStringLiteral("software\\GLOSARIA");
    EXPECT_EQ(tree->value(HKEY_CURRENT_USER, key, QStringLiteral("name")),
              (RegistryValue{RegistryType::String, QStringLiteral("a b")}));
    EXPECT_EQ(tree->value(HKEY_CURRENT_USER, key, QStringLiteral("n")), (RegistryValue{RegistryType::Number, 12u}));
}

TEST(RegistryText, DamageIsNoticed)
{
    const QByteArray head = "Glosaria registry 1\nHKEY_CURRENT_USER \"K\"\n";
    const QByteArray lines[] = {
        "\"a\" = number 4294967296", "\"a\" = number -1",          "\"a\" = number",
        "\"a\" = binary 0",          "\"a\" = binary 000",         "\"a\" = binary 0g",
        "\"a\" = binary +1",         "\"a\" = string \"x",         "\"a\" = string \"x\" y",
        "\"a\" = string \"\\x\"",    "\"a\" = string \"\\u12\"",   "\"a\" = string \"\\",
        "\"a\" = strange \"x\"",     "\"a\" string \"x\"",         "\"a",
        "HKEY_OTHER \"x\"",          "HKEY_CURRENT_USER x",        "\"a\" = string-list \"x",
        "\"a\" = string \"\xff\"",   "\"a\" = string \"\\u+123\"",
    };
    for (const QByteArray &line : lines)
        EXPECT_FALSE(RegistryText::read(QByteArray(head + line + "\nend\n")).has_value()) << line.constData();
    EXPECT_FALSE(RegistryText::read("Glosaria registry 1\n\"a\" = number 1\nend\n").has_value());
    EXPECT_FALSE(RegistryText::read("").has_value());

    const QByteArray whole = head + "\"a\" = string \"text\"\nend\n";
    for (qsizetype size = 0; size < whole.size() - 1; ++size)
        EXPECT_FALSE(RegistryText::read(whole.left(size)).has_value()) << size;
}

TEST(RegistryText, AnyBytesAreReadOrRefused)
{
    QRandomGenerator random(11);
    for (int i = 0; i < 3000; ++i) {
        QByteArray bytes = RegistryText::write(nastyTree(random));
        for (int k = random.bounded(5); k >= 0; --k)
            bytes[random.bounded(int(bytes.size()))] = char(random.generate());
        const std::optional<RegistryTree> tree = RegistryText::read(bytes);
        EXPECT_TRUE(!tree || RegistryText::read(RegistryText::write(*tree)) == tree) << bytes.toHex(' ').constData();
    }
}
