#include "services/status/modSBMenuHelp.h"

#include "services/status/modSBFunc.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QStatusTipEvent>

namespace {

const QAction *highlightedEntry()
{
    const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    return menu ? menu->activeAction() : nullptr;
}

} // namespace

modSBMenuHelp::modSBMenuHelp(modSBFunc &status, QObject *parent)
    : QObject(parent)
    , m_status(status)
{
}

void modSBMenuHelp::watch(QWidget *source)
{
    source->installEventFilter(this);
}

bool modSBMenuHelp::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::StatusTip)
        return false;
    onTip(static_cast<QStatusTipEvent *>(event)->tip());
    return true;
}

/// An enabled entry shows its text, be it empty. Those of titles and buttons are held back, as all others, while a
/// search goes through the cells.
void modSBMenuHelp::onTip(const QString &tip)
{
    const QAction *entry = highlightedEntry();
    const bool isTold = entry ? entry->isEnabled() : !tip.isEmpty() && !m_status.isHeldBack();
    if (isTold)
        show(tip);
    else
        leave();
}

void modSBMenuHelp::show(const QString &text)
{
    if (m_status.text(0) != m_shown)
        m_before = m_status.text(0);
    m_shown = text;
    m_status.showText(text);
}

/// What has been told since, by a dialog that has opened, say, stays.
void modSBMenuHelp::leave()
{
    if (m_status.text(0) != std::exchange(m_shown, {}))
        return;
    if (m_status.isHeldBack())
        m_status.SBSetText(0, modSBFunc::SBT_SUNKEN, m_before);
    else
        m_status.ShowStatus(modSBFunc::Ready);
}
