#include "widgets/clsTimer.h"

clsTimer::clsTimer(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &clsTimer::ThatTime);
}

int clsTimer::Interval() const
{
    return m_timer.isActive() ? m_timer.interval() : 0;
}

void clsTimer::setInterval(int milliseconds)
{
    if (milliseconds > 0)
        m_timer.start(milliseconds);
    else
        m_timer.stop();
}
