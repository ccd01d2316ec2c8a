#include "services/help/DialogHelp.h"

#include "services/FormTexts.h"
#include "services/help/clsHtmlHelp.h"

#include <QApplication>
#include <QDialog>

DialogHelp::DialogHelp(HelpDisplay &display, AlertBox &alert, HelpTarget target, QObject *parent)
    : QObject(parent)
    , m_display(display)
    , m_alert(alert)
    , m_target(std::move(target))
{
    QApplication::instance()->installEventFilter(this);
}

bool DialogHelp::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show)
        return false;
    auto *dialog = qobject_cast<QDialog *>(watched);
    if (!dialog || !FormTexts::helpContextId(dialog))
        return false;
    if (!dialog->findChild<clsHtmlHelp *>(QString(), Qt::FindDirectChildrenOnly))
        (new clsHtmlHelp(m_display, m_alert, m_target, dialog))->attach(dialog);
    return false;
}
