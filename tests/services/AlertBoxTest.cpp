#include "services/modMsgBox.h"

TEST(AlertBox, TheHelpKeyOpensTheTopicAndEscapeAnswers)
{
    const std::tuple<Alert::Buttons, bool, AlertBox::Answer> cases[] = {
        {Alert::YesNoCancelHelp, true, AlertBox::AnswerCancel},
        {Alert::OkHelp, true, AlertBox::AnswerOk},
        {Alert::YesNo, false, AlertBox::AnswerNo},
        {Alert::Ok, false, AlertBox::AnswerOk},
    };
    for (const auto &[buttons, help, answer] : cases) {
        std::vector<int> topics;
        modMsgBox box([&topics](int id) { topics.push_back(id); });
        Alert alert;
        alert.buttons = buttons;
        alert.helpId = 1400;
        alert.prompt = "A question";
        alert.exclamation = help;
        QTimer::singleShot(0, [&topics, waits = help] {
            QWidget *shown = QApplication::activeModalWidget();
            QApplication::setActiveWindow(shown);
            const auto *message = qobject_cast<QMessageBox *>(shown);
            EXPECT_EQ(message->icon(), waits ? QMessageBox::Warning : QMessageBox::NoIcon);
            EXPECT_EQ(message->text(), "A question");
            QTest::keyClick(shown, Qt::Key_H, Qt::AltModifier);
            EXPECT_TRUE(!waits || QTest::qWaitFor([&topics] { return !topics.empty(); }));
            EXPECT_TRUE(shown->isVisible());
            QTest::keyClick(shown, Qt::Key_Escape);
        });
        EXPECT_EQ(box.show(nullptr, alert), answer) << int(buttons);
        EXPECT_EQ(topics, help ? std::vector{1400} : std::vector<int>{});
        auto *owner = new QWidget;
        QTimer::singleShot(0, [owner] { delete owner; });
        EXPECT_EQ(box.show(owner, alert), answer) << "the owner has gone";
    }
}
