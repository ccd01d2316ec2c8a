#include "tools/rules/DialogPlace.h"

TEST(DialogPlace, KeepsTheSelectionVisible)
{
    const QRect owner(100, 100, 800, 600);
    const QSize dialog(200, 150);
    const std::tuple<QPoint, QRect, QPoint, QRect> cases[] = {
        {{400, 300}, {}, {400, 300}, {0, 0, 1000, 800}},
        {{400, 300}, {110, 120, 300, 20}, {400, 300}, {0, 0, 1000, 800}},
        {{400, 300}, {450, 350, 100, 20}, {700, 550}, {0, 0, 1000, 800}}, // hidden there: the lower right corner
        {{700, 550}, {750, 560, 100, 20}, {700, 100}, {0, 0, 1000, 800}}, // the upper right one
        {{700, 550}, owner, {700, 700}, {0, 0, 1000, 900}},               // below it
        {{990, 790}, {0, 0, 10, 10}, {800, 650}, {0, 0, 1000, 800}},      // never beyond the screen
        {{700, 550}, owner, {900, 550}, {0, 0, 1200, 800}},               // right of it
        {{700, 550}, owner, {-100, 550}, {-100, 0, 1100, 800}},           // left of it
        {{700, 550}, owner, {700, -50}, {0, -50, 1000, 850}},             // above it
    };
    for (const auto &[preferred, keepFree, expected, screen] : cases)
        EXPECT_EQ(DialogPlace::topLeft({dialog, preferred, owner, screen, keepFree}), expected)
            << keepFree.x() << "," << keepFree.y();
}
