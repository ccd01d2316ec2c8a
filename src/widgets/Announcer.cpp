#include "widgets/Announcer.h"

#include <QAccessibleWidget>

namespace {

QAccessibleInterface *notification(const QString &, QObject *object)
{
    auto *announcer = qobject_cast<Announcer *>(object);
    return announcer ? new QAccessibleWidget(announcer, QAccessible::Notification) : nullptr;
}

} // namespace

Announcer::Announcer(QWidget *parent)
    : QWidget(parent)
{
    static const bool isKnown = (QAccessible::installFactory(notification), true);
    Q_UNUSED(isKnown)
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 1, 1);
    hide();
}

/// A notification is read when it shows, which the toolkit tells.
void Announcer::say(const QString &text)
{
    if (text.isEmpty() || !QAccessible::isActive())
        return;
    setAccessibleName(text);
    hide();
    show();
}
