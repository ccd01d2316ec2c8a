#pragma once

#include <QApplication>

/// Shows the hourglass pointer while it lives.
class Hourglass
{
public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(Hourglass)
};
