#include "document/rules/LetterWidths.h"

TEST(LetterWidths, NeverTakeATextToFitThatDoesNot)
{
    const QStringList pieces{"AV", "To", "ffi", "W.", "i",  "l",  "m",  "Œ",  "ß",    "ñ",
                             " ",  "-",  "ž",   "'",  "Ту", "γά", "жд", "、", "かガ", "日本"};
    std::mt19937 random(5);
    for (const char *family : {"Liberation Sans", "Liberation Serif", "DejaVu Sans"}) {
        for (const double size : {6.0, 10.0, 33.0}) {
            QFont font(family);
            font.setPointSizeF(size);
            const auto measure = [font](const QString &text) { return QFontMetricsF(font).horizontalAdvance(text); };
            LetterWidths letters(measure);
            int fits = 0;
            for (int round = 0; round < 200; ++round) {
                QString text;
                for (unsigned count = 1 + random() % 12; count > 0; --count)
                    text += pieces[random() % unsigned(pieces.size())];
                const double room = measure(text) * (0.9 + 0.4 * double(random() % 100) / 100);
                const bool surely = letters.surelyFits(text, room);
                fits += surely;
                EXPECT_LE(surely ? measure(text) : 0, room) << text.toStdString();
            }
            EXPECT_GT(fits, 0) << family << size;
        }
    }
}

TEST(LetterWidths, LeaveScriptsThatJoinAndStackLettersOpen)
{
    LetterWidths letters([](const QString &) { return 1; });
    for (const char16_t letter : u"a \u024F\u0370\u0482\u048A\u052F\u3000\u3029\u3030\u3098\u309B\u30FF\u4E00\u9FFF")
        EXPECT_TRUE(letters.surelyFits(QChar(letter), 100)) << int(letter);
    for (const char16_t letter :
         u"\u0250\u0301\u036F\u0483\u0489\u0530\u05D0\u2FFF\u302A\u302F\u3099\u309A\u3100\u4DFF\uA000\uFDFA")
        EXPECT_FALSE(letter && letters.surelyFits(QChar(letter), 100)) << int(letter);
}
