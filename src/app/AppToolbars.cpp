#include "app/AppToolbars.h"

#include "app/AppMenus.h"
#include "app/CommandTable.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"

#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

namespace {

const char PictureProperty[] = "pictureNumber";

} // namespace

AppToolbars::AppToolbars(QMainWindow &window, CommandTable &table, const AppMenus &menus)
    : QObject(&window)
    , m_table(table)
    , m_standard(addBand(window, QStringLiteral("STANDARD"), QStringLiteral("tbrStandard"), 12622,
                         MenuLayout::standardButtons()))
    , m_preview(
          addBand(window, QStringLiteral("PREVIEW"), QStringLiteral("tbrPreview"), 12623, MenuLayout::previewButtons()))
{
    for (QAction *action : m_standard->actions())
        m_standardButtons.insert(action->objectName(), action);
    addDropDown(QStringLiteral("Model"), menus.menu(QStringLiteral("mnuMode")));
    addDropDown(QStringLiteral("Quiz"), menus.menu(QStringLiteral("mnuQuiz")));
}

QToolBar *AppToolbars::addBand(QMainWindow &window, const QString &key, const QString &name, int titleId,
                               const std::vector<MenuLayout::Button> &buttons)
{
    auto *bar = new QToolBar(resText(titleId), &window);
    bar->setObjectName(name);
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->toggleViewAction()->setObjectName(key);
    bar->toggleViewAction()->setEnabled(false);
    for (const MenuLayout::Button &button : buttons) {
        if (button.key.isEmpty())
            bar->addSeparator();
        else
            addButton(bar, button);
    }
    // Takes the buttons that a narrow window has no room for; the toolkit gives it no name.
    if (auto *overflow = bar->findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"))) {
        overflow->setAccessibleName(resText(12624));
        overflow->setToolTip(resText(12624));
    }
    window.addToolBar(bar);
    return bar;
}

QAction *AppToolbars::addButton(QToolBar *bar, const MenuLayout::Button &button)
{
    QAction *command = m_table.action(button.command);
    auto *action = new QAction(command->icon(), resText(button.toolTipId), bar);
    action->setObjectName(button.key);
    action->setProperty("textId", button.toolTipId);
    action->setWhatsThis(resText(button.whatsThisId));
    action->setStatusTip(resText(button.hoverHelpId));
    action->setEnabled(command->isEnabled());
    connect(action, &QAction::triggered, command, &QAction::trigger);
    connect(command, &QAction::changed, action, [action, command] { action->setEnabled(command->isEnabled()); });
    bar->addAction(action);

    QWidget *widget = bar->widgetForAction(action);
    widget->setProperty("whatsThisId", button.whatsThisId);
    widget->setAccessibleName(action->text());
    return action;
}

void AppToolbars::addDropDown(const QString &button, QMenu *menu)
{
    // The button's menu, not its action's: an action would take the menu away from the menu bar.
    if (auto *widget = qobject_cast<QToolButton *>(m_standard->widgetForAction(m_standardButtons.value(button)))) {
        widget->setMenu(menu);
        widget->setPopupMode(QToolButton::MenuButtonPopup);
    }
}

void AppToolbars::applyState(AppState state)
{
    m_standard->setVisible(state != AppState::StatePreview);
    m_preview->setVisible(state == AppState::StatePreview);
}

void AppToolbars::setPicture(const QString &button, int pictureNumber)
{
    QAction *action = m_standardButtons.value(button);
    action->setIcon(picture(pictureNumber));
    action->setProperty(PictureProperty, pictureNumber);
}

int AppToolbars::pictureOf(const QString &button) const
{
    return m_standardButtons.value(button)->property(PictureProperty).toInt();
}

void AppToolbars::setToolTip(const QString &button, const QString &text)
{
    QAction *action = m_standardButtons.value(button);
    action->setText(FormTexts::withoutMnemonic(text));
    m_standard->widgetForAction(action)->setAccessibleName(action->text());
}

int AppToolbars::whatsThisAt(const QPoint &point) const
{
    for (const QToolBar *bar : {m_standard, m_preview}) {
        const QPoint place = bar->mapFrom(bar->window(), point);
        if (!bar->isVisible() || !bar->rect().contains(place))
            continue;
        if (const QWidget *button = bar->childAt(place))
            return button->property("whatsThisId").toInt();
    }
    return -1;
}
