#include "services/modMsgBox.h"

TEST(AlertBox, ShowsWhatItIsAskedToAndAnswersByKeys)
{
    QWidget mainWindow, caller;
    const std::tuple<Alert::Buttons, const char *, AlertBox::Answer, AlertBox::Answer> cases[] = {
        {Alert::Ok, ">OK", AlertBox::AnswerOk, AlertBox::AnswerOk},
        {Alert::OkHelp, ">OK | &Help", AlertBox::AnswerOk, AlertBox::AnswerOk},
        {Alert::YesNo, "&Yes | >&No", AlertBox::AnswerNo, AlertBox::AnswerNo},
        {Alert::YesNoCancelHelp, ">&Yes | &No | Cancel | &Help", AlertBox::AnswerYes, AlertBox::AnswerCancel}};
    for (const auto &[buttons, parts, enter, escape] : cases) {
        std::vector<int> topics;
        int beeps = 0;
        modMsgBox box([&topics](int id) { topics.push_back(id); }, [&beeps] { ++beeps; });
        box.setMainWindow(&mainWindow);
        const bool help = buttons == Alert::OkHelp || buttons == Alert::YesNoCancelHelp;
        const Alert alert{"<b>A question</b>", help ? "Title" : "", buttons, 1400, help, help};
        for (const auto &[key, answer] : {std::pair(Qt::Key_Return, enter), {Qt::Key_Escape, escape}}) {
            topics.clear();
            QWidget *owner = key == Qt::Key_Return ? nullptr : &caller;
            QTimer::singleShot(0, [&, key = key, parts = parts] {
                auto *message = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                QApplication::setActiveWindow(message);
                EXPECT_TRUE(message->parentWidget() == (owner ? &caller : &mainWindow) &&
                            message->textFormat() == Qt::PlainText);
                EXPECT_EQ(message->icon(), help ? QMessageBox::Warning : QMessageBox::NoIcon);
                EXPECT_EQ(shown(*message).toStdString(),
                          std::string(help ? "Title" : "Glosaria Alert") + " | <b>A question</b> | " + parts);
                QTest::keyClick(message, Qt::Key_H, Qt::AltModifier);
                QTest::keyClick(message, Qt::Key_F1);
                EXPECT_TRUE(!help || QTest::qWaitFor([&topics] { return topics.size() == 2; }));
                EXPECT_TRUE(message->isVisible());
                QTest::keyClick(message->focusWidget(), key);
            });
            EXPECT_EQ(box.show(owner, alert), answer) << int(buttons);
            EXPECT_EQ(topics, help ? (std::vector{1400, 1400}) : std::vector<int>{});
        }
        EXPECT_EQ(beeps, help ? 2 : 0);
        auto *gone = new QWidget;
        QTimer::singleShot(0, [gone] { delete gone; });
        EXPECT_EQ(box.show(gone, alert), escape) << "the owner has gone";
    }
}
