#include "print/BusyWindow.h"

#include <QApplication>

BusyWindow::BusyWindow(QWidget *window)
    : m_window(window)
    , m_wasEnabled(window->updatesEnabled())
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    window->setUpdatesEnabled(false);
}

BusyWindow::~BusyWindow()
{
    if (m_window)
        m_window->setUpdatesEnabled(m_wasEnabled);
    QApplication::restoreOverrideCursor();
}
