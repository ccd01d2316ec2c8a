#include "services/desktop/EscapeKey.h"

#include <QApplication>
#include <QKeyEvent>

EscapeKey::EscapeKey(QApplication &application)
{
    application.installEventFilter(this);
}

bool EscapeKey::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if ((type != QEvent::ShortcutOverride && type != QEvent::KeyPress) || !watched->isWindowType() ||
        static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        return false;
    if (type == QEvent::ShortcutOverride) {
        m_list = QApplication::activePopupWidget();
        return false;
    }
    return m_list && m_list != QApplication::activePopupWidget();
}
