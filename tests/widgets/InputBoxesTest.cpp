#include "widgets/Announcer.h"
#include "widgets/ExtendedComboBox.h"
#include "widgets/NumberBox.h"
#include "widgets/QuietPanes.h"
#include "widgets/TextBoxAccessible.h"
#include "widgets/clsTimer.h"

TEST(NumberBox, TakesDigitsOnlyAndRefusesTheRestAsAWhole)
{
    // what the program shows, what is typed, what is pasted, and what the box shows then
    const std::tuple<double, const char *, const char *, const char *> cases[] = {
        {-1, "30", "", "30"},    {-1, "3a-. 0", "", "30"},  {-1, "12345678", "", "1234567"},
        {-1, "30", "x1", "30"},  {-1, "3", "-5", "3"},      {-1, "3", "04", "304"},
        {10, ".", "0", "100"},   {10.5, ".", "0", "10.50"}, {10, "", ".", "10"},
        {10.5, "", ".", "10.5"}, {0, "9", "9", "099"},      {9, "", ".", "9"}};
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

TEST(TextBox, IsToldToScreenReadersInOnePieceAndDoesWhatTheyWant)
{
    TextBoxAccessible::install();
    QuietPanes::install();
    QLineEdit box("Katze");
    box.setValidator(new QRegularExpressionValidator(QRegularExpression("\\D*"), &box));
    box.setPlaceholderText("hint");
    box.resize(200, 30);
    QAccessibleInterface &told = *QAccessible::queryAccessibleInterface(&box);
    QAccessibleTextInterface &text = *told.textInterface();
    QAccessibleEditableTextInterface &edit = *told.editableTextInterface();
    // what is done, and the text, the caret, the number of selections and the first two of them afterwards
    const std::pair<std::function<void()>, const char *> steps[] = {
        {[&] { text.addSelection(1, 3); }, "Katze 3 1 1-3 0-0"},
        {[&] { text.removeSelection(1), text.setSelection(1, 0, 5); }, "Katze 3 1 1-3 0-0"},
        {[&] { text.removeSelection(0); }, "Katze 3 0 0-0 0-0"},
        {[&] { text.setCursorPosition(2); }, "Katze 2 0 0-0 0-0"},
        {[&] { edit.insertText(5, "n"); }, "Katzen 6 0 0-0 0-0"},
        {[&] { edit.deleteText(0, 1); }, "atzen 5 0 0-0 0-0"},
        {[&] { edit.replaceText(1, 3, "RZ"); }, "aRZen 5 0 0-0 0-0"},
        {[&] { text.scrollToSubstring(1, 3); }, "aRZen 1 0 0-0 0-0"},
        {[&] { told.setText(QAccessible::Value, "Hund"); }, "Hund 4 0 0-0 0-0"},
        {[&] { told.setText(QAccessible::Value, "4"), told.setText(QAccessible::Name, "x"); }, "Hund 4 0 0-0 0-0"}};
    for (const auto &[step, expected] : steps) {
        step();
        int from[2], to[2];
        for (const int i : {0, 1})
            text.selection(i, &from[i], &to[i]);
        const QString selected =
            QString::asprintf("%d %d-%d %d-%d", text.selectionCount(), from[0], to[0], from[1], to[1]);
        EXPECT_EQ(QString("%1 %2 ").arg(told.text(QAccessible::Value)).arg(text.cursorPosition()) + selected, expected);
    }
    EXPECT_EQ(text.text(1, 3) + text.text(3, 1), "un");
    for (const QString word : {"Katze", "\u05e9\u05dc\u05d5\u05dd"}) {
        box.setText(word);
        for (int letter = 0, start = -1, end = -1; letter < 4; ++letter) {
            text.attributes(letter, &start, &end);
            EXPECT_EQ(text.text(start, end), word);
            const QRect place = text.characterRect(letter);
            EXPECT_EQ(text.offsetAtPoint(place.center() + QPoint(word.isRightToLeft() ? 2 : -2, 0)), letter);
            EXPECT_NEAR(place.height(), box.fontMetrics().height(), 1);
        }
        EXPECT_TRUE(text.characterRect(-1).isNull() && text.characterRect(5).isNull());
    }
    for (const bool own : {false, true}) {
        box.setAccessibleDescription(own ? "own" : "");
        box.setReadOnly(own);
        EXPECT_EQ(told.text(QAccessible::Description), own ? "own" : "hint");
        EXPECT_TRUE(told.state().editable && told.state().selectableText && told.state().readOnly == own);
    }
    EXPECT_TRUE(told.actionInterface() && !told.tableInterface());
    QSpinBox number;
    QLineEdit password;
    password.setEchoMode(QLineEdit::Password);
    QMdiArea area;
    QStackedWidget pages;
    QLabel label;
    Announcer announcer(&area);
    announcer.say("heard by nobody");
    EXPECT_TRUE(announcer.isHidden() && announcer.size() == QSize(1, 1) && announcer.accessibleName().isEmpty() &&
                announcer.testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&announcer)->role(), QAccessible::Notification);
    for (QWidget *other : std::initializer_list<QWidget *>{number.findChild<QLineEdit *>(), &password, &label})
        EXPECT_FALSE(dynamic_cast<TextBoxAccessible *>(QAccessible::queryAccessibleInterface(other)));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&area)->role(), QAccessible::Client);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&pages)->role(), QAccessible::Client);
}
