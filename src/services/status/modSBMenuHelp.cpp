#include "services/status/modSBMenuHelp.h"

#include "services/status/modSBFunc.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace {

constexpr int FirstTitleHelp = 100;

} // namespace

modSBMenuHelp::modSBMenuHelp(modSBFunc &status, QObject *parent)
    : QObject(parent)
    , m_status(status)
{
}

void modSBMenuHelp::watch(QMenu *menu, HelpText helpText)
{
    connect(menu, &QMenu::hovered, this, [this, menu, helpText = std::move(helpText)](const QAction *action) {
        if (!action->isEnabled() || action->isSeparator() || !menu->actions().contains(action))
            return;
        const QString text = helpText(action);
        if (text.isEmpty())
            return;
        m_status.ShowStatus(0);
        m_status.SBSetText(0, modSBFunc::SBT_SUNKEN, text);
    });
    connect(menu, &QMenu::aboutToHide, this, [this] { m_status.ShowStatus(modSBFunc::Ready); });
}

void modSBMenuHelp::watch(QMenuBar *menuBar)
{
    m_menuBar = menuBar;
    menuBar->installEventFilter(this);
    connect(menuBar, &QMenuBar::hovered, this, [this, menuBar](QAction *action) {
        if (const qsizetype i = menuBar->actions().indexOf(action); i >= 0)
            m_status.ShowStatus(FirstTitleHelp + int(i));
    });
}

void modSBMenuHelp::watchSystemMenu(QMenu *menu)
{
    connect(menu, &QMenu::aboutToShow, this, [this] { m_status.ShowStatus(0); });
    watch(menu, [](const QAction *) { return QStringLiteral(" "); });
}

bool modSBMenuHelp::eventFilter(QObject *watched, QEvent *event)
{
    // The keys leave the menu bar with the focus, the pointer without.
    if (watched == m_menuBar && (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut))
        m_status.ShowStatus(modSBFunc::Ready);
    return QObject::eventFilter(watched, event);
}
