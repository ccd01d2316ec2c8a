#pragma once

#include "services/AlertBox.h"

#include <QPointer>
#include <QWidget>

#include <functional>

/// The program's alert box on the screen: its own title and icon, the buttons asked for, and a Help button that opens
/// a topic while the box stays.
class modMsgBox : public AlertBox
{
public:
    /// openTopic shows a help topic in the window that belongs to alert boxes.
    using OpenTopic = std::function<void(int helpId)>;

    /// beep gives the sound of a box that has one.
    modMsgBox(OpenTopic openTopic, std::function<void()> beep);

    /// The window that owns a box whose caller names none.
    void setMainWindow(QWidget *window) { m_mainWindow = window; }

    Answer show(QWidget *owner, const Alert &alert) override;

private:
    OpenTopic m_openTopic;
    std::function<void()> m_beep;
    QPointer<QWidget> m_mainWindow;
};
