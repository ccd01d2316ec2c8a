#include "services/desktop/PopupCloser.h"

#include <QApplication>
#include <QDialog>

PopupCloser::PopupCloser(QApplication &application)
{
    application.installEventFilter(this);
}

bool PopupCloser::eventFilter(QObject *watched, QEvent *event)
{
    const auto *dialog = event->type() == QEvent::Hide ? qobject_cast<QDialog *>(watched) : nullptr;
    QWidget *popup = dialog ? QApplication::activePopupWidget() : nullptr;
    if (popup && (dialog->isAncestorOf(popup->parentWidget()) || dialog->isAncestorOf(popup->focusProxy())))
        popup->close();
    return false;
}
