#include "progress/BarChart.h"

struct BarChartTest : ::testing::Test
{
    BarChartTest()
    {
        chart.setBars("Words", {{"one", 3000, "1"}, {"two", 0, {}}, {"three", 6000, {}}, {"four", 1, {}}});
        chart.resize(Width, 160);
        window.resize(Width, 200);
        window.show();
        window.activateWindow();
    }
    /// Left edge, width and height of every bar on the picture.
    std::vector<QList<int>> bars()
    {
        const QImage image = chart.grab().toImage();
        const QRgb colour = chart.palette().color(QPalette::Highlight).rgb();
        std::vector<QList<int>> found;
        for (int x = 0, before = 0; x < image.width(); ++x) {
            int height = 0;
            for (int y = 0; y < image.height(); ++y)
                height += image.pixel(x, y) == colour ? 1 : 0;
            if (height > 0 && before == 0)
                found.push_back({x, 0, height});
            if (height > 0)
                ++found.back()[1];
            before = height;
        }
        return found;
    }
    QString press(Qt::Key key)
    {
        QTest::keyClick(&chart, key);
        return chart.accessibleDescription();
    }

    static constexpr int Width = 300;
    QWidget window;
    BarChart chart{&window};
};

TEST_F(BarChartTest, BarsAreAsHighAsTheirNumbersInTheOrderOfReading)
{
    const std::vector<QList<int>> shown = bars();
    const int highest = shown.at(1)[2];
    EXPECT_EQ(shown, (std::vector<QList<int>>{{10, 48, highest / 2}, {130, 48, highest}, {190, 48, 1}}));
    chart.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(bars(), (std::vector<QList<int>>{{62, 48, 1}, {122, 48, highest}, {242, 48, highest / 2}}));
    EXPECT_EQ(chart.asText(), "Words\none: 3,000\ntwo: 0\nthree: 6,000\nfour: 1");
}

TEST_F(BarChartTest, KeysAndPointerNameABar)
{
    const QString all = chart.asText().section('\n', 1);
    EXPECT_EQ(chart.accessibleDescription(), all);
    chart.setFocus();
    const std::pair<Qt::Key, const char *> keys[] = {{Qt::Key_Left, "one: 3,000"},    {Qt::Key_Right, "two: 0"},
                                                     {Qt::Key_Right, "three: 6,000"}, {Qt::Key_End, "four: 1"},
                                                     {Qt::Key_Right, "four: 1"},      {Qt::Key_Home, "one: 3,000"}};
    for (const auto &[key, name] : keys)
        EXPECT_EQ(press(key), name);
    chart.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(press(Qt::Key_Left), "two: 0");
    chart.setLayoutDirection(Qt::LeftToRight);
    const std::pair<int, QString> places[] = {
        {5, "one: 3,000"}, {63, "one: 3,000"}, {64, "two: 0"}, {260, all}, {2, all}};
    for (const auto &[x, name] : places) {
        QTest::mouseMove(&chart, QPoint(x, 80));
        EXPECT_EQ(chart.accessibleDescription(), name) << x;
    }
}
