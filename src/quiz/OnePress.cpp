#include "quiz/OnePress.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {

/// Whether the key is an answer, or one of the letters that press a button, rather than text or a way to move.
bool presses(const QKeyEvent &key, const QObject &receiver)
{
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || (key.modifiers() & Qt::AltModifier))
        return true;
    const bool isDigit = key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9;
    return isDigit && !qobject_cast<const QLineEdit *>(&receiver);
}

} // namespace

OnePress::OnePress(QWidget &window, const QSet<const QObject *> &clicked)
    : QObject(&window)
    , m_clicked(clicked)
{
    window.installEventFilter(this);
    for (QWidget *control : window.findChildren<QWidget *>())
        control->installEventFilter(this);
}

bool OnePress::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: // what is accepted here comes as a key, not as a letter that presses a button
    case QEvent::KeyPress: {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (!key->isAutoRepeat() || !presses(*key, *watched))
            return false;
        event->accept();
        return true;
    }
    case QEvent::MouseButtonDblClick:
        return m_clicked.contains(watched);
    default:
        return false;
    }
}
