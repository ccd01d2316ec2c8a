#include "quiz/QuizProgress.h"

#include "quiz/QuizColours.h"

TEST(QuizProgressTest, ShowsTheSharesOfRightAndWrongAnswersInTheOrderOfReading)
{
    QuizProgress bar;
    bar.resize(100, bar.sizeHint().height());
    bar.setCounts(10, 4, 3);
    for (const bool rightToLeft : {false, true}) {
        bar.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        const QImage image = bar.grab().toImage();
        const auto at = [&](int x) { return image.pixelColor(rightToLeft ? 99 - x : x, image.height() / 2).rgb(); };
        QString seen; // right, wrong and still to come
        for (const int x : {5, 20, 38, 42, 55, 68, 72, 90})
            seen += at(x) == QuizColours::Right.rgb() ? 'r' : at(x) == QuizColours::Wrong.rgb() ? 'w' : '-';
        EXPECT_EQ("rrrwww--", seen);
    }
}
