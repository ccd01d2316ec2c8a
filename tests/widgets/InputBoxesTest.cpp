#include "widgets/ExtendedComboBox.h"
#include "widgets/NumberBox.h"

#include <QClipboard>
#include <QSignalSpy>

namespace {

TEST(NumberBox, TakesDigitsOnlyAndRefusesTheRestAsAWhole)
{
    struct Case
    {
        QString typed, pasted, shown;
        bool refused;
    };
    const Case cases[] = {
        {"30", "", "30", false},  {"3a-. 0", "", "30", true}, {"12345678", "", "1234567", true},
        {"30", "x1", "30", true}, {"3", "-5", "3", true},     {"3", "04", "304", false},
    };
    for (const Case &test : cases) {
        NumberBox box;
        box.setMaxLength(7);
        const QSignalSpy refused(&box, &QLineEdit::inputRejected);
        QTest::keyClicks(&box, test.typed);
        QGuiApplication::clipboard()->setText(test.pasted);
        box.paste();
        EXPECT_EQ(box.text(), test.shown);
        EXPECT_EQ(box.Value(), test.shown.toInt());
        EXPECT_EQ(refused.count() > 0, test.refused) << test.typed.toStdString();
    }
    EXPECT_EQ(NumberBox().Value(), std::nullopt);
}

TEST(ExtendedComboBox, CompletesFromItsListAndComesBackToIt)
{
    ExtendedComboBox box;
    box.addItems({"Liberation Mono", "Liberation Sans", "Noto Serif"});
    box.setAutoComplete();
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    box.setFocus();
    box.lineEdit()->selectAll();
    QTest::keyClicks(box.lineEdit(), "noto");
    EXPECT_EQ(box.lineEdit()->text().toLower(), "noto serif");
    EXPECT_EQ(box.lineEdit()->selectedText(), " Serif");
    EXPECT_EQ(box.matchingIndex(), 2);
    QTest::keyClick(box.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(box.currentText(), "Noto Serif");
    EXPECT_EQ(box.currentIndex(), 2);

    box.lineEdit()->selectAll();
    QTest::keyClicks(box.lineEdit(), "Nothing");
    EXPECT_EQ(box.matchingIndex(), -1);
    QTest::keyClick(box.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(box.currentText(), "Noto Serif");
    EXPECT_EQ(box.count(), 3);
}

} // namespace
