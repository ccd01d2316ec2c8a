#include "services/help/clsHtmlHelp.h"

#include "support/RecordingHelp.h"
#include "support/ScriptedAlertBox.h"

TEST(clsHtmlHelp, AnswersF1ByTheControlWithTheFocusOrTheDropDown)
{
    RecordingHelp help;
    ScriptedAlertBox alert;
    QWidget window;
    QLineEdit line(&window), other;
    QMenu menu(&window), further(&menu), unnamed(&window);
    for (const auto &[widget, id] : {std::pair<QWidget *, int>(&window, 1), {&line, 2}, {&menu, 3}})
        widget->setProperty("helpContextId", id);
    line.setProperty("whatsThisId", 99);
    clsHtmlHelp requests(help, alert, {});
    requests.attach(&window);
    window.show();
    other.show();
    constexpr auto F1 = Qt::Key_F1;
    constexpr auto Shift = Qt::ShiftModifier, Ctrl = Qt::ControlModifier, Pad = Qt::KeypadModifier;
    // the control with the focus, the one that gets the key, and what comes of it
    const std::tuple<QWidget *, QWidget *, QKeyCombination, const char *> keys[] = {
        {&line, &window, Pad | F1, "2"}, {&other, &window, F1, "1"},     {&other, &other, F1, ""},
        {&line, &line, Ctrl | F1, ""},   {&line, &line, Qt::Key_F2, ""}, {&line, &line, Shift | F1, "?"},
        {&line, &menu, Shift | F1, ""},  {&line, &menu, F1, "3"},        {&line, &further, F1, "3"},
        {&line, &unnamed, F1, "2"}};
    for (const auto &[focus, receiver, key, told] : keys) {
        QApplication::setActiveWindow(focus->window());
        focus->setFocus();
        help.calls.clear();
        QKeyEvent press(QEvent::KeyPress, key.key(), key.keyboardModifiers());
        QCoreApplication::sendEvent(receiver, &press);
        QString seen(QWhatsThis::inWhatsThisMode() ? "?" : "");
        for (const RecordingHelp::Call &call : help.calls)
            seen += call.data.toString();
        EXPECT_EQ(seen, told) << key.toCombined();
        QWhatsThis::leaveWhatsThisMode();
    }
    EXPECT_EQ(alert.shown.size(), 1u) << "there is no text 99";
}
