#pragma once

#include "services/AlertBox.h"

/// Answers alert boxes in the user's place and keeps what they showed. Without a prepared answer it says OK, or Cancel
/// where there is such a button.
struct ScriptedAlertBox : AlertBox
{
    std::deque<Answer> answers;
    std::vector<Alert> shown;

    Answer show(QWidget *, const Alert &alert) override
    {
        shown.push_back(alert);
        if (answers.empty())
            return alert.buttons == Alert::YesNoCancelHelp ? AnswerCancel
                   : alert.buttons == Alert::YesNo         ? AnswerNo
                                                           : AnswerOk;
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    /// The boxes shown since the last call, as "title: text" after the help topic's number, "!" for the sound and
    /// "!" for the sign.
    QString told()
    {
        QStringList all;
        for (const Alert &each : std::exchange(shown, {}))
            all += (each.helpId ? QString::number(each.helpId) : "") + (each.sound ? "!" : "") +
                   (each.exclamation ? "!" : "") + each.title + ": " + each.prompt;
        return all.join(u'|');
    }

    /// The text of the only box shown; a text that no box shows when there were none or several.
    QString onlyPrompt() const
    {
        return shown.size() == 1 ? shown.front().prompt : QStringLiteral("<%1 boxes>").arg(shown.size());
    }
};
