#pragma once

#include <QObject>
#include <QTimer>

/// A timer that is its Interval: a value above 0 starts it anew, 0 stops it.
class clsTimer : public QObject
{
    Q_OBJECT

public:
    explicit clsTimer(QObject *parent = nullptr);

    /// Milliseconds between two events, 0 while it stands still.
    int Interval() const;
    void setInterval(int milliseconds);

Q_SIGNALS:
    /// An interval has elapsed. The timer goes on until its interval is set to 0.
    void ThatTime();

private:
    QTimer m_timer;
};
