#include "services/desktop/Contrast.h"

TEST(Contrast, BringsColoursOutOnEveryGround)
{
    for (const auto &[colour, ratio] :
         {std::pair(Qt::black, 21.0), {Qt::red, 4.0}, {Qt::green, 1.37}, {Qt::blue, 8.59}})
        EXPECT_NEAR(Contrast::between(Qt::white, colour), ratio, 0.01);
    for (const auto &[ground, text] :
         {std::pair("#efefef", "#000000"), {"#323232", "#eeeeec"}, {"#000000", "#ffffff"}}) {
        QPalette palette;
        palette.setColor(QPalette::Window, QColor(ground));
        palette.setColor(QPalette::WindowText, QColor(text));
        const QColor faint = QColor::fromRgba(qRgba(128, 128, 128, 64));
        for (const QColor &colour : {QColor(0x2a, 0x9d, 0x4e), QColor(0xd6, 0x3b, 0x3b), QColor(ground), faint})
            EXPECT_GE(Contrast::between(Contrast::readable(colour, palette), QColor(ground)), 4.5) << ground;
        EXPECT_EQ(Contrast::readable(QColor(text), palette).rgb(), QColor(text).rgb());
    }
}
