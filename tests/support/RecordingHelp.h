#pragma once

#include "services/help/HelpDisplay.h"

/// Keeps what help was asked for.
struct RecordingHelp : HelpDisplay
{
    struct Call
    {
        QString window;
        HelpCommand command;
        QVariant data;
        bool operator==(const Call &) const = default;
    };
    std::vector<Call> calls;

    bool HtmlHelp(const HelpTarget &target, HelpCommand command, const QVariant &data) override
    {
        calls.push_back({target.HelpWindow, command, data});
        return true;
    }

    std::vector<int> popUps; ///< ids of the texts
    QPoint popUpPlace;       ///< of the last one, on the screen

    void showPopUp(QWidget *, int textId, const QPoint &screenPoint) override
    {
        popUps.push_back(textId);
        popUpPlace = screenPoint;
    }
};
