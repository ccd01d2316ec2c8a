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
        for (const int x : {5, 20, 38})
            EXPECT_EQ(at(x), QColor(QuizColours::Right).rgb()) << x;
        for (const int x : {42, 55, 68})
            EXPECT_EQ(at(x), QColor(QuizColours::Wrong).rgb()) << x;
        EXPECT_EQ(at(72), at(90)) << "still to come";
        EXPECT_NE(at(72), at(68));
    }
}
