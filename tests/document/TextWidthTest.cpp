#include "document/rules/TextWidth.h"

#include <random>

TEST(TextWidth, NeverTakesATextToFitThatDoesNot)
{
    const QStringList pieces{"AV", "To", "ffi", "W.", "i", "l", "m", "Œ", "ß", "ñ", " ", "-", "ž", "'"};
    std::mt19937 random(5);
    for (const char *family : {"Liberation Sans", "Liberation Serif", "DejaVu Sans"}) {
        for (const double size : {6.0, 10.0, 33.0}) {
            QFont font(family);
            font.setPointSizeF(size);
            TextWidth width(font);
            int fits = 0;
            for (int round = 0; round < 200; ++round) {
                QString text;
                for (unsigned count = 1 + random() % 12; count > 0; --count)
                    text += pieces[random() % unsigned(pieces.size())];
                const double room = width.of(text) * (0.9 + 0.4 * double(random() % 100) / 100);
                const bool surely = width.surelyFits(text, room);
                fits += surely;
                EXPECT_LE(surely ? width.of(text) : 0, room) << text.toStdString();
            }
            EXPECT_GT(fits, 0) << family << size;
        }
    }
}

TEST(TextWidth, TakesNothingForSureInScriptsThatJoinAndStackLetters)
{
    TextWidth width;
    for (const QString text : {"e\u0301", "שלום", "ﷺ", "日本", "🙂", "a\tb"})
        EXPECT_FALSE(width.surelyFits(text, 1e6)) << text.toStdString();
}
