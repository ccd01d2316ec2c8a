#include "services/desktop/Contrast.h"

TEST(Contrast, IsMeasuredAndReached)
{
    for (const auto &[colour, ratio] :
         {std::pair(Qt::black, 21.0), {Qt::red, 4.0}, {Qt::green, 1.37}, {Qt::blue, 8.59}}) {
        EXPECT_NEAR(Contrast::between(Qt::white, colour), ratio, 0.01);
        EXPECT_GE(Contrast::between(Contrast::readable(QColor(99, 99, 99, 64), colour, Qt::white), colour),
                  std::min(ratio - 0.1, 4.5));
    }
}
