#include "widgets/ExtendedComboBox.h"
#include "widgets/NumberBox.h"

TEST(NumberBox, TakesDigitsOnlyAndRefusesTheRestAsAWhole)
{
    // what is typed, what is pasted, and what the box shows
    const std::array<const char *, 3> cases[] = {{"30", "", "30"},   {"3a-. 0", "", "30"}, {"12345678", "", "1234567"},
                                                 {"30", "x1", "30"}, {"3", "-5", "3"},     {"3", "04", "304"}};
    for (const auto &[typed, pasted, shown] : cases) {
        NumberBox box;
        box.setMaxLength(7);
        const QSignalSpy refused(&box, &QLineEdit::inputRejected);
        QTest::keyClicks(&box, typed);
        QGuiApplication::clipboard()->setText(pasted);
        box.paste();
        EXPECT_EQ(box.text(), shown);
        EXPECT_EQ(box.Value(), box.text().toInt());
        EXPECT_EQ(refused.isEmpty(), box.text() == QString(typed) + pasted) << typed;
    }
    EXPECT_EQ(NumberBox().Value(), std::nullopt);
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
        {"Any", "", -1, "Cambria"}, {"noto", " Serif", 2, "Noto Serif"}, {"Nothing", "", -1, "Noto Serif"}};
    for (const auto &[typed, completion, entry, shown] : cases) {
        box.lineEdit()->selectAll();
        QTest::keyClicks(box.lineEdit(), typed);
        EXPECT_EQ(box.lineEdit()->selectedText(), completion);
        EXPECT_EQ(box.matchingIndex(), entry);
        QTest::keyClick(box.lineEdit(), Qt::Key_Return);
        EXPECT_EQ(box.currentText(), shown);
    }
    EXPECT_EQ(box.count(), 3);
}
