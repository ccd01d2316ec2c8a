#include "services/help/clsHtmlHelp.h"

#include "support/RecordingHelp.h"
#include "support/ScriptedAlertBox.h"

TEST(clsHtmlHelp, AnswersF1ByTheControlWithTheFocusOrTheDropDown)
{
    RecordingHelp help;
    ScriptedAlertBox alert;
    QWidget window;
    QLineEdit line(&window);
    QMenu menu(&window), further(&menu), unnamed(&window);
    line.setProperty("helpContextId", 2);
    menu.setProperty("helpContextId", 3);
    line.setProperty("whatsThisId", 99);
    clsHtmlHelp requests(help, alert, {});
    requests.attach(&window);
    window.show();
    QApplication::setActiveWindow(&window);
    line.setFocus();
    constexpr auto F1 = Qt::Key_F1;
    constexpr auto Shift = Qt::ShiftModifier, Ctrl = Qt::ControlModifier, Pad = Qt::KeypadModifier;
    const std::tuple<QWidget *, QKeyCombination, const char *> keys[] = {
        {&window, Pad | F1, "2"}, {&line, Ctrl | F1, ""}, {&line, Qt::Key_F2, ""}, {&line, Shift | F1, "?"},
        {&menu, Shift | F1, ""},  {&menu, F1, "3"},       {&further, F1, "3"},     {&unnamed, F1, "2"}};
    for (const auto &[receiver, key, told] : keys) {
        help.calls.clear();
        QKeyEvent press(QEvent::KeyPress, key.key(), key.keyboardModifiers());
        QCoreApplication::sendEvent(receiver, &press);
        const QString topic = help.calls.empty() ? QString() : help.calls[0].data.toString();
        EXPECT_EQ((QWhatsThis::inWhatsThisMode() ? "?" : "") + topic, told) << key.toCombined();
        QWhatsThis::leaveWhatsThisMode();
    }
    EXPECT_EQ(alert.shown.size(), 1u) << "there is no text 99";
}
