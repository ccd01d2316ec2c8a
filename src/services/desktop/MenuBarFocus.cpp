#include "services/desktop/MenuBarFocus.h"

#include <QApplication>
#include <QMenuBar>

MenuBarFocus::MenuBarFocus(QApplication &application)
{
    connect(&application, &QApplication::focusChanged, this, &MenuBarFocus::onFocusChanged);
}

void MenuBarFocus::onFocusChanged(QWidget *old, QWidget *now)
{
    auto *bar = qobject_cast<QMenuBar *>(now);
    if (!bar)
        return;
    if (old)
        m_before = old;
    if (bar->activeAction())
        return;
    if (m_before)
        m_before->setFocus(Qt::MenuBarFocusReason);
    else
        bar->clearFocus();
}
