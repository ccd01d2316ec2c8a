#include "tools/rules/DialogPlace.h"

TEST(DialogPlace, KeepsTheSelectionVisible)
{
    const QRect owner(100, 100, 800, 600), screen(0, 0, 1000, 800);
    const QSize dialog(200, 150);
    const std::tuple<QPoint, QRect, QPoint> cases[] = {
        {{400, 300}, {}, {400, 300}},
        {{400, 300}, {110, 120, 300, 20}, {400, 300}},
        {{400, 300}, {450, 350, 100, 20}, {700, 550}},  // hidden there: the lower right corner
        {{700, 550}, {750, 560, 100, 20}, {700, 100}},  // the upper right one
        {{700, 550}, {100, 100, 800, 600}, {700, 650}}, // below it, as far as the screen goes
        {{990, 790}, {0, 0, 10, 10}, {800, 650}},       // never beyond the screen
    };
    for (const auto &[preferred, keepFree, expected] : cases)
        EXPECT_EQ(DialogPlace::topLeft({dialog, preferred, owner, screen, keepFree}), expected)
            << keepFree.x() << "," << keepFree.y();
}
