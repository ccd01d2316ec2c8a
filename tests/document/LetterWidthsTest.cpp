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
    EXPECT_TRUE(letters.surelyFits("a word", 100));
    for (const QString text : {"e\u0301", "שלום", "ﷺ", "か\u3099", "🙂"})
        EXPECT_FALSE(letters.surelyFits(text, 100)) << text.toStdString();
}
