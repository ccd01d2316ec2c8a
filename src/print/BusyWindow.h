#pragma once

#include <QPointer>
#include <QWidget>

/// While it lives, a window does not redraw itself and the pointer is the hourglass.
class BusyWindow
{
public:
    explicit BusyWindow(QWidget *window);
    ~BusyWindow();
    Q_DISABLE_COPY_MOVE(BusyWindow)

private:
    QPointer<QWidget> m_window;
    bool m_wasEnabled;
};
