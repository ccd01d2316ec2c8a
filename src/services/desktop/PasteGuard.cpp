#include "services/desktop/PasteGuard.h"

#include "platform/ClipboardOwner.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

bool asksForClipboard(const QEvent &event)
{
    return event.type() == QEvent::ContextMenu ||
           (event.type() == QEvent::KeyPress && static_cast<const QKeyEvent &>(event).matches(QKeySequence::Paste));
}

} // namespace

PasteGuard::PasteGuard(QApplication &application, ClipboardOwner &owner)
    : m_owner(owner)
{
    application.installEventFilter(this);
}

bool PasteGuard::mayPaste() const
{
    return m_owner.answers();
}

bool PasteGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (!asksForClipboard(*event) || !qobject_cast<QLineEdit *>(watched) || mayPaste())
        return false;
    QApplication::beep();
    return true;
}
