#include "document/rules/LetterWidths.h"

TEST(LetterWidths, NeverTakeATextToFitThatDoesNot)
{
    const QStringList pieces = QString("AV|To|ffi|W.|i|l|m|Œ|ß|ñ| |-|ž|'|Ту|γά|жд|、|かガ|日本").split('|');
    std::mt19937 random(5);
    const QFontMetricsF metrics(QFont("Liberation Serif", 10));
    const auto measure = [metrics](const QString &text) { return metrics.horizontalAdvance(text); };
    LetterWidths letters(measure);
    for (int round = 0; round < 1800; ++round) {
        QString text;
        for (unsigned count = 1 + random() % 12; count > 0; --count)
            text += pieces[random() % unsigned(pieces.size())];
        EXPECT_FALSE(letters.surelyFits(text, measure(text) * 0.999)) << text.toStdString();
        EXPECT_TRUE(letters.surelyFits(text, measure(text) * 1.6)) << text.toStdString();
    }
}

TEST(LetterWidths, LeaveScriptsThatJoinAndStackLettersOpen)
{
    const std::pair<int, int> alone[] = {{' ', 0x24F},     {0x370, 0x482},   {0x48A, 0x52F},  {0x3000, 0x3029},
                                         {0x3030, 0x3098}, {0x309B, 0x30FF}, {0x4E00, 0x9FFF}};
    LetterWidths letters([](const QString &) { return 1; });
    for (int letter = ' '; letter < 0x10000; ++letter)
        EXPECT_EQ(letters.surelyFits(QChar(letter), 100),
                  std::ranges::any_of(
                      alone, [letter](const auto &range) { return letter >= range.first && letter <= range.second; }))
            << letter;
}
