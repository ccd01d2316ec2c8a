#pragma once

#include "services/help/HelpDisplay.h"

#include <QObject>

class AlertBox;

/// Gives every dialog whose form names help topics a help object of its own when it shows for the first time. The
/// object lives as long as the dialog.
class DialogHelp : public QObject
{
    Q_OBJECT

public:
    DialogHelp(HelpDisplay &display, AlertBox &alert, HelpTarget target, QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    HelpDisplay &m_display;
    AlertBox &m_alert;
    HelpTarget m_target;
};
