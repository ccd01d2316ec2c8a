#pragma once

#include <QString>

class QWidget;

/// What an alert box shows.
struct Alert
{
    enum Buttons { Ok, OkHelp, YesNo, YesNoCancelHelp };

    QString prompt;
    QString title = {}; ///< empty: the one that alert boxes have
    Buttons buttons = Ok;
    int helpId = 0;           ///< help topic of the Help button, 0: none
    bool sound = false;       ///< the exclamation sound precedes the box
    bool exclamation = false; ///< the exclamation icon in place of the program's
};

/// Asks or tells the user something in a modal box. Everything that must do so is handed one, so that tests can answer
/// in the user's place; the program hands out modMsgBox.
class AlertBox
{
public:
    enum Answer { AnswerOk, AnswerYes, AnswerNo, AnswerCancel };

    virtual ~AlertBox() = default;

    /// Returns when the user has chosen; pressing Help opens the topic and keeps the box. Closing the box counts as
    /// Cancel where there is one, as No where there is that, else as OK. owner may be null: then the box belongs to the
    /// main window.
    virtual Answer show(QWidget *owner, const Alert &alert) = 0;
};
