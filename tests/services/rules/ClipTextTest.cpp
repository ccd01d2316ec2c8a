#include "services/rules/ClipText.h"

TEST(ClipText, TakesTextsOfAnyProgramApart)
{
    // texts, each with its cells between bars and its rows between slashes
    const QString cases =
        "=;\n=;a=a;a\tb\rc\td=a|b/c|d;a\tb\r\nc\td\r\n=a|b/c|d;a\n\nb\n=a//b;a\r\r\n\n=a//;\t\r\t=|/|;a\r\r=a//;"
        "a\t\tb=a||b;a\t=a|;"
        // a spreadsheet's cells with a line feed inside
        "\"a\nb\"\tc\nd\te\n=a\nb|c/d|e;x\t\"say \"\"a\"\"\r\nb\"=x|say \"a\"\r\nb;\"a\tb\nc\"\n=a\tb\nc;"
        // quotes that are part of words
        "\"a\"\t\"b\"=\"a\"|\"b\";\"a\tb\"=\"a|b\";\"a\rb\"=\"a/b\";\"a\nb=\"a/b;\"a\" he said\n\"b\"=\"a\" he "
        "said/\"b\";"
        "a\nb\"=a/b\";\"\"\n\"=\"\"/\";5\" x\n6\"=5\" x/6\"";
    for (const QString &each : cases.split(';')) {
        QStringList rows;
        for (const ClipText::Row &row : ClipText::parse(each.section('=', 0, 0)))
            rows += QStringList(row.begin(), row.end()).join('|');
        EXPECT_EQ(rows.join('/').toStdString(), each.section('=', 1).toStdString());
    }
}
