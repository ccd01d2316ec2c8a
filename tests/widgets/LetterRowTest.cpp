#include "widgets/LetterRow.h"

TEST(LetterRowTest, ClicksAndKeysTypeLettersAndTheirCapitals)
{
    QDialog window;
    auto *row = new LetterRow(&window);
    auto *box = new QLineEdit(&window);
    new QLineEdit(&window); // to which Tab would lead else
    row->setTabOrderAfter(box);
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(box);
    layout->addWidget(row);
    QObject::connect(row, &LetterRow::typed, box, &QLineEdit::insert);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_FALSE(row->isVisible());
    row->setLetters({"ä", "ß", "ж"});
    EXPECT_TRUE(row->isVisible());
    const QList<QToolButton *> buttons = row->findChildren<QToolButton *>();
    EXPECT_TRUE(buttons[2]->toolTip() == "Ctrl+3" && buttons[2]->autoRaise());
    const auto wide = [&buttons](int i) { return buttons[i]->sizeHint().width(); };
    EXPECT_EQ(row->childrenRect(), QRect(0, 0, wide(0) + wide(1) + wide(2), row->height()));
    box->setFocus();
    for (QToolButton *button : buttons)
        QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(box->hasFocus());
    QTest::keyPress(box, Qt::Key_Shift, Qt::ShiftModifier);
    EXPECT_EQ(buttons[0]->accessibleName(), "Ä");
    QTest::mouseClick(buttons[1], Qt::LeftButton, Qt::ShiftModifier);
    QTest::mouseClick(buttons[2], Qt::LeftButton, Qt::ShiftModifier);
    QEvent away(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(qApp, &away);
    EXPECT_EQ(buttons[0]->accessibleName() + buttons[0]->text(), "ää");
    QTest::keyRelease(box, Qt::Key_Shift);
    QTest::keyClick(box, Qt::Key_1, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_3, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(box, Qt::Key_4, Qt::ControlModifier); // there is none
    EXPECT_EQ(box->text(), "äßжßЖäЖ");
    QTest::keyClick(box, Qt::Key_Tab);
    for (const QString &step : QString("Right 1, Left 0, Left 0, Right 1, Right 2, Right 2").split(", ")) {
        QTest::keySequence(QApplication::focusWidget(), QKeySequence(step.section(' ', 0, 0)));
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(buttons[i]->hasFocus() && buttons[i]->focusPolicy() == Qt::TabFocus,
                      i == step.back().digitValue());
        EXPECT_EQ((buttons[0]->focusPolicy() | buttons[1]->focusPolicy() | buttons[2]->focusPolicy()), Qt::TabFocus);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(box->text(), "äßжßЖäЖж");
    row->setLetters(QString("abcdefghij").split("", Qt::SkipEmptyParts));
    EXPECT_EQ(row->findChildren<QToolButton *>()[8]->toolTip() + row->findChildren<QToolButton *>()[9]->toolTip(),
              "Ctrl+9");
    row->setLetters({});
    EXPECT_FALSE(row->isVisible());
}
