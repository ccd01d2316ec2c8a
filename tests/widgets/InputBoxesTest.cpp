#include "widgets/ExtendedComboBox.h"
#include "widgets/NumberBox.h"
#include "widgets/TextBoxAccessible.h"
#include "widgets/clsTimer.h"

TEST(NumberBox, TakesDigitsOnlyAndRefusesTheRestAsAWhole)
{
    // what the program shows, what is typed, what is pasted, and what the box shows then
    const std::tuple<double, const char *, const char *, const char *> cases[] = {
        {-1, "30", "", "30"},    {-1, "3a-. 0", "", "30"},  {-1, "12345678", "", "1234567"},
        {-1, "30", "x1", "30"},  {-1, "3", "-5", "3"},      {-1, "3", "04", "304"},
        {10, ".", "0", "100"},   {10.5, ".", "0", "10.50"}, {10, "", ".", "10"},
        {10.5, "", ".", "10.5"}, {0, "9", "9", "099"}};
    for (const auto &[value, typed, pasted, shown] : cases) {
        NumberBox box;
        EXPECT_EQ(box.Value(), std::nullopt);
        box.setMaxLength(7);
        value < 0 ? box.clear() : box.setValue(value);
        const QString before = box.text();
        const QSignalSpy refused(&box, &QLineEdit::inputRejected);
        QTest::keyClicks(&box, typed);
        QGuiApplication::clipboard()->setText(pasted);
        box.paste();
        EXPECT_EQ(box.text(), shown);
        EXPECT_TRUE(box.Value() == box.text().toInt() || value == 10.5);
        EXPECT_EQ(refused.isEmpty(), box.text() == before + typed + pasted) << typed;
    }
    NumberBox box;
    box.setValue(10.5);
    box.setText("9");
    QGuiApplication::clipboard()->setText(".");
    box.paste();
    EXPECT_EQ(box.text(), "9.") << "a point where there was one";
}

TEST(ExtendedComboBox, CompletesFromItsListAndComesBackToIt)
{
    ExtendedComboBox box;
    box.addItems({"Liberation Mono", "Liberation Sans", "Noto Serif"});
    box.setAutoComplete("Cambria");
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    // what is typed, what it is completed with, the entry that it stands for, and what the box shows in the end
    const std::tuple<const char *, const char *, int, const char *> cases[] = {
        {"Any", "", -1, "Cambria"},
        {"noto", " Serif", 2, "Noto Serif"},
        {"Nothing", "", -1, "Noto Serif"},
        {"liberation m", "ono", 0, "Liberation Mono"},
        {"Nothing", "", -1, "Liberation Mono"}};
    for (const auto &[typed, completion, entry, shown] : cases) {
        box.lineEdit()->selectAll();
        QTest::keyClicks(box.lineEdit(), typed);
        EXPECT_EQ(box.lineEdit()->selectedText(), completion);
        EXPECT_EQ(box.matchingIndex(), entry);
        QTest::keyClick(box.lineEdit(), Qt::Key_Return);
        EXPECT_EQ(box.currentText(), shown);
    }
    EXPECT_EQ(box.count(), 3);
    ExtendedComboBox list;
    list.addItems({"one", "two"});
    list.setAccessibleName("Numbers");
    list.show();
    EXPECT_EQ(list.view()->accessibleName(), "Numbers");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        QKeyEvent press(QEvent::KeyPress, key, {});
        QCoreApplication::sendEvent(&list, &press);
        EXPECT_EQ(press.isAccepted(), key == Qt::Key_Down) << "Enter is the window's";
    }
    EXPECT_EQ(list.currentText(), "two");
    list.setItemData(1, 2.0);
    list.setNumbersOnly(2.5);
    EXPECT_TRUE(list.currentIndex() == -1 && list.currentText() == "2.5" && !list.completer());
}

TEST(ExtendedComboBox, ShowsColoursInFramesThatFollowThePalette)
{
    ExtendedComboBox box;
    box.addColor("Red", Qt::red, 255);
    box.addItem("none");
    box.addColor("Blue", Qt::blue, 0xFF0000);
    EXPECT_EQ(box.itemData(2), 0xFF0000);
    EXPECT_TRUE(box.itemIcon(1).isNull());
    QSet<QRgb> frames;
    for (const QColor &text : {QColor(Qt::black), QColor(Qt::green)}) {
        QPalette palette;
        palette.setColor(QPalette::Text, text);
        box.setPalette(palette);
        for (const auto &[entry, colour] : {std::pair(0, Qt::red), {2, Qt::blue}}) {
            const QSize size = box.iconSize();
            const QImage drawn = box.itemIcon(entry).pixmap(size).toImage();
            EXPECT_EQ(drawn.pixelColor(size.width() / 2, size.height() / 2), QColor(colour));
            EXPECT_EQ(box.itemIcon(entry).pixmap(size, QIcon::Selected).toImage(), drawn) << "also on the highlight";
            for (const QPoint &corner : {QPoint(), QPoint(size.width() - 1, size.height() - 1)})
                frames += drawn.pixel(corner);
        }
    }
    EXPECT_EQ(frames.size(), 4) << "one of each colour and text";
}

TEST(Timer, TellsItsIntervalWhileItRuns)
{
    clsTimer timer;
    const QSignalSpy ticks(&timer, &clsTimer::ThatTime);
    for (const int interval : {0, 5000, -3, 1}) {
        timer.setInterval(interval);
        EXPECT_EQ(timer.Interval(), std::max(0, interval));
    }
    EXPECT_TRUE(QTest::qWaitFor([&ticks] { return ticks.size() > 1; }));
}

TEST(TextBox, IsToldToScreenReadersInOnePiece)
{
    TextBoxAccessible::install();
    QLineEdit box("Katze");
    box.resize(200, 30);
    auto &told = *dynamic_cast<TextBoxAccessible *>(QAccessible::queryAccessibleInterface(&box));
    box.setSelection(1, 2);
    int start = -1, end = -1;
    told.selection(0, &start, &end);
    EXPECT_EQ(std::pair(start, end), std::pair(1, 3));
    for (int letter = 0; letter < 5; ++letter) {
        told.attributes(letter, &start, &end);
        EXPECT_EQ(told.text(start, end), "Katze");
        EXPECT_EQ(told.offsetAtPoint(told.characterRect(letter).topLeft() + QPoint(1, 5)), letter);
    }
    told.replaceText(4, 5, "en");
    EXPECT_EQ(told.text(QAccessible::Value), "Katzen");
}
