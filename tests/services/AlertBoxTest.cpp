#include "resources/StringTable.h"
#include "services/modMsgBox.h"

#include <QMessageBox>

namespace {

QMessageBox *openBox()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

void click(QMessageBox *box, QMessageBox::StandardButton button)
{
    QTest::mouseClick(box->button(button), Qt::LeftButton);
}

} // namespace

TEST(AlertBox, HelpOpensTheTopicAndTheBoxStays)
{
    std::vector<int> topics;
    modMsgBox alert([&topics](int id) { topics.push_back(id); });
    Alert question;
    question.prompt = QStringLiteral("Save?");
    question.buttons = Alert::YesNoCancelHelp;
    question.helpId = 1400;
    bool stayed = false;
    QTimer::singleShot(0, [&] {
        QApplication::setActiveWindow(openBox());
        QTest::keyClick(openBox(), Qt::Key_H, Qt::AltModifier);
        QTest::qWait(200);
        stayed = openBox() && openBox()->isVisible();
        EXPECT_EQ(openBox()->windowTitle(), resText(507));
        click(openBox(), QMessageBox::No);
    });
    EXPECT_EQ(alert.show(nullptr, question), AlertBox::AnswerNo);
    EXPECT_TRUE(stayed);
    EXPECT_EQ(topics, std::vector<int>{1400});
}

TEST(AlertBox, EscapeCancelsAQuestionAndConfirmsAMessage)
{
    modMsgBox alert([](int) {});
    for (const auto &[buttons, answer] :
         {std::pair(Alert::YesNoCancelHelp, AlertBox::AnswerCancel), std::pair(Alert::OkHelp, AlertBox::AnswerOk),
          std::pair(Alert::Ok, AlertBox::AnswerOk)}) {
        Alert shown;
        shown.buttons = buttons;
        QTimer::singleShot(0, [] { QTest::keyClick(openBox(), Qt::Key_Escape); });
        EXPECT_EQ(alert.show(nullptr, shown), answer) << int(buttons);
    }
}
