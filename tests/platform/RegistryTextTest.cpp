#include "platform/registry/RegistryText.h"

TEST(RegistryText, NothingIsLost)
{
    const QString nasty = QString::fromUtf8("\" \\\\u0041 \n\r\t = ] é 日 ") + QChar::Null + QChar(0x7f) + QChar(0x85) +
                          QChar(0xd800) + QChar(0x2028) + QChar(0xfeff) + QChar(0xffff) + QChar(0xdc00) +
                          QString::fromUtf8("\U0001F600");
    RegistryTree tree;
    int number = 0;
    for (const QString &text : {QString(), nasty, QString(" end "), QString(QChar(0xd800)), QString("\U0001F600")}) {
        using enum RegistryType;
        const QStringList list{text, QString(), text};
        const RegistryValue values[] = {{String, text},        {ExpandString, text},  {Binary, text.toUtf8()},
                                        {Number, 0xffffffffu}, {BigEndianNumber, 0u}, {StringList, QStringList()},
                                        {StringList, list}};
        for (const RegistryValue &value : values) {
            tree.setValue(HKEY_CLASSES_ROOT, text, QString::number(++number), value);
            tree.setValue(HKEY_CURRENT_USER, text + "\\x", text, value);
        }
    }
    const QByteArray text = RegistryText::write(tree);
    EXPECT_TRUE(RegistryText::read(text) == tree) << text.constData();
}

TEST(RegistryText, DamageIsNoticed)
{
    const QByteArray lines =
        R"("a" = number 4294967296|"a" = number -1|"a" = number|"a" = binary 0|"a" = binary 000|"a" = binary 0g|)"
        R"("a" = binary +1|"a" = string "x|"a" = string "x" y|"a" = string "\x"|"a" = string "\u12"|"a" = string "\|)"
        R"("a" = strange "x"|"a" string "x"|"a"|HKEY_OTHER "x"|HKEY_CURRENT_USER xy"|"a" = string-list "x|)"
        R"("a" = string "\u+123"|"a" = string ")"
        "\xff\"";
    const QByteArray head = "Glosaria registry 1\nHKEY_CURRENT_USER \"K\"\n";
    for (const QByteArray &line : lines.split('|'))
        EXPECT_FALSE(RegistryText::read(QByteArray(head + line + "\nend\n")).has_value()) << line.constData();
    for (const char *text : {"Glosaria registry 1\n\"a\" = number 1\nend\n", "Glosaria registry 2\nend\n"})
        EXPECT_FALSE(RegistryText::read(text).has_value()) << text;
    const QByteArray whole = head + "\"a\" = string \"text\"\nend\n";
    for (qsizetype size = 0; size < whole.size() - 1; ++size)
        EXPECT_FALSE(RegistryText::read(whole.left(size)).has_value()) << size;
}
