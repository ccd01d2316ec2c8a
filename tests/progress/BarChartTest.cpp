#include "progress/BarChart.h"

struct BarChartTest : ::testing::Test
{
    BarChartTest()
    {
        chart.setPalette(QPalette(Qt::darkRed)); // on which lines are white
        setBars(" ");
        window.show();
        QApplication::setActiveWindow(&window);
    }
    void setBars(const QString &one, const QString &two = {}, const QString &four = {})
    {
        chart.setBars(title, {{"one", 3000, one}, {"two", 0, two}, {"three", 6000, {}}, {"four", 1, four}});
        chart.resize(300, 3 * line() + 108);
    }
    int line() const { return chart.fontMetrics().height(); }
    /// Where something else begins along a row of the picture, counted from the head of the bars: # a bar, | a line, .
    /// neither.
    std::string along(int row)
    {
        const QRgb bar = chart.palette().highlight().color().rgb();
        const QImage image = chart.grab(QRect(0, 2 * line() + 4 + row, 300, 1)).toImage();
        QString told;
        for (int x = 0; x < 300; ++x) {
            const char sign = image.pixel(x, 0) == bar ? '#' : image.pixel(x, 0) == 0xFFFFFFFF ? '|' : '.';
            told += told.endsWith(sign) ? "" : QString(" %1").arg(x) + sign;
        }
        return told.toStdString();
    }
    /// How much further than this text the writing goes that begins at this height of the picture.
    int beyond(const char *words, int top)
    {
        const QRect ink = inkOf(chart.grab().toImage().copy(0, top, 300, line()), Qt::darkRed);
        return ink.right() - chart.fontMetrics().horizontalAdvance(words);
    }

    const char *const title = "All the words of the vocabulary", *const text = "a text that is wider than half of it";
    QWidget window;
    BarChart chart{&window};
};

TEST_F(BarChartTest, ShowsItsNumbersInTheOrderOfReadingAndNamesThemForKeysAndPointer)
{
    EXPECT_EQ(chart.accessibleDescription(), "one: 3,000");
    chart.clearFocus();
    const char *const three = " 0. 10# 58. 130# 178. 190# 238.", *const two = " 0. 10# 58. 130# 178.";
    for (const auto &[row, shown] :
         {std::pair(-1, " 0."), {0, " 0. 130# 178."}, {50, two}, {98, two}, {99, three}, {100, " 0. 4| 297."}})
        EXPECT_EQ(along(row), shown) << row;
    EXPECT_GT(beyond(title, 0), 4 + 3) << "in bold";
    EXPECT_NEAR(beyond("Highest: 6,000", line()), 4, 2);
    chart.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(along(99), " 0. 62# 110. 122# 170. 242# 290.");
    setBars(text, text);
    QTest::keyClick(&chart, Qt::Key_Home);
    EXPECT_EQ(along(99), " 0. 11# 70. 84# 143. 223| 224. 230# 289. 295| 296.");
    chart.setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(along(99), " 0. 4| 5. 11# 70. 76| 77. 157# 216. 230# 289.");
    EXPECT_NEAR(beyond("one: 3,000", line()), 4, 2);
    EXPECT_NEAR(beyond(text, 2 * line() + 105), 0, 2);
    setBars({}, "two");
    EXPECT_NEAR(beyond("two", 2 * line() + 105), 64 + 30 - chart.fontMetrics().horizontalAdvance("two") / 2, 2);
    setBars({}, {}, text);
    EXPECT_NEAR(beyond("", 2 * line() + 105), 300, 2);
    setBars({});
    EXPECT_EQ(chart.sizeHint() + QSize(0, 2 * chart.minimumSizeHint().height()), QSize(260, 9 * line() + 194));
    EXPECT_GT(chart.minimumSizeHint().width(), chart.fontMetrics().horizontalAdvance(title) + 8);
    EXPECT_EQ(chart.asText().toStdString(), title + std::string("\none: 3,000\ntwo: 0\nthree: 6,000\nfour: 1"));
    QTest::mouseMove(&chart, {64, 80});
    chart.setFocus();
    // keys, places of the pointer, < for the other direction of reading, and which bar is told then
    const QString steps =
        "A two, Left one, Left one, Right two, Right three, End four, Right four, 5 one, 63 one, 64 two, "
        "260 all, 2 all, Home one, < one, Left two, 294 one, 2 all, Right one, Left two";
    for (const QString &step : steps.split(", ")) {
        const QString act = step.section(' ', 0, 0);
        if (act == "<")
            chart.setLayoutDirection(Qt::RightToLeft);
        else
            act.toInt() ? QTest::mouseMove(&chart, {act.toInt(), 80}) : QTest::keySequence(&chart, QKeySequence(act));
        const QString told = chart.accessibleDescription();
        EXPECT_EQ(act + ' ' + (told.contains('\n') ? "all" : told.section(':', 0, 0)), step);
    }
    QCoreApplication::sendEvent(&chart, std::make_unique<QEvent>(QEvent::Leave).get());
    EXPECT_TRUE(chart.accessibleDescription().contains('\n'));
    QTest::keySequence(&chart, QKeySequence("Home, Left"));
    setBars({});
    EXPECT_EQ(chart.accessibleDescription(), "two: 0") << "still has the focus";
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&chart)->role(), QAccessible::Chart);
    chart.setBars("None", {});
    QTest::keyClick(&chart, Qt::Key_Left);
    chart.clearFocus();
    chart.setFocus();
    EXPECT_EQ(chart.accessibleName() + chart.accessibleDescription(), "None");
}
