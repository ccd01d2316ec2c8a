#include "services/desktop/Contrast.h"

TEST(Contrast, BringsColoursOutOnEveryGround)
{
    for (const auto &[colour, ratio] :
         {std::pair(Qt::black, 21.0), {Qt::red, 4.0}, {Qt::green, 1.37}, {Qt::blue, 8.59}})
        EXPECT_NEAR(Contrast::between(Qt::white, colour), ratio, 0.01);
    for (const auto &[ground, text] :
         {std::pair("#efefef", "#000000"), {"#323232", "#eeeeec"}, {"#000000", "#ffffff"}}) {
        for (const QColor &colour : {QColor("#2a9d4e"), QColor("#d63b3b"), QColor(ground), QColor(128, 128, 128, 64)})
            EXPECT_GE(Contrast::between(Contrast::readable(colour, ground, text), ground), 4.5) << ground;
        EXPECT_EQ(Contrast::readable(text, ground, Qt::red), QColor(text));
    }
}
