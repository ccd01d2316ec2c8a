#include "app/AppMenus.h"

#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/MenuLayout.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "document/rules/QuizModeText.h"
#include "resources/StringTable.h"
#include "resources/TextLanguage.h"
#include "services/FormTexts.h"
#include "services/rules/QuizModes.h"
#include "services/settings/clsAppProperties.h"
#include "services/settings/clsMRUFileList.h"
#include "services/status/modSBMenuHelp.h"

#include <QMenu>
#include <QMenuBar>

namespace {

constexpr int LongestCaption = 32;
constexpr int FirstTitleHelp = 100;

QString modeKey(int mode)
{
    return QStringLiteral("mnuMode") + QString::number(mode);
}

} // namespace

AppMenus::AppMenus(QMenuBar *tbrMenu, CommandTable &table, const AppContext &context, modSBMenuHelp &help,
                   QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_context(context)
    , m_gridMenu(new QMenu(tbrMenu))
{
    int helpId = FirstTitleHelp;
    for (const MenuLayout::Menu &each : MenuLayout::menus())
        addMenu(tbrMenu, each, helpId++);
    buildGridMenu();
    help.watch(m_gridMenu);
}

void AppMenus::addMenu(QMenuBar *menuBar, const MenuLayout::Menu &layout, int helpId)
{
    QMenu *menu = menuBar->addMenu(resText(layout.captionId));
    menu->setObjectName(layout.key);
    menu->setProperty("helpContextId", layout.helpContextId);
    menu->menuAction()->setStatusTip(resText(helpId));
    m_menus.insert(layout.key, menu);
    addEntries(menu, layout.entries);
    connect(menu, &QMenu::aboutToShow, this, [this, &layout] { oAppMenu_InitPopupMenu(layout); });
    oAppMenu_InitPopupMenu(layout);
}

void AppMenus::addEntries(QMenu *menu, const QStringList &keys)
{
    for (const QString &key : keys) {
        if (key.startsWith(u'-'))
            menu->addSeparator()->setObjectName(key.mid(1));
        else if (key.startsWith(u'>'))
            menu->addMenu(submenu(MenuLayout::submenu(key.mid(1)), menu));
        else
            menu->addAction(m_table.action(key));
    }
}

/// Made when it is needed first, and kept: File and Window are filled anew each time.
QMenu *AppMenus::submenu(const MenuLayout::Submenu &layout, QMenu *parent)
{
    QMenu *&menu = m_menus[layout.key];
    if (menu)
        return menu;
    menu = new QMenu(resText(layout.captionId), parent);
    menu->setObjectName(layout.key);
    menu->setProperty("helpContextId", parent->property("helpContextId"));
    menu->menuAction()->setProperty("textId", layout.captionId);
    menu->menuAction()->setStatusTip(resText(layout.helpId));
    addEntries(menu, layout.entries);
    return menu;
}

/// An entry that opens a menu is enabled while any entry of that is.
void AppMenus::updateEntries(const QStringList &keys)
{
    for (const QString &key : keys) {
        if (key.startsWith(u'>')) {
            const QStringList &entries = MenuLayout::submenu(key.mid(1)).entries;
            updateEntries(entries);
            const auto enabled = [this](const QString &each) { return m_table.action(each)->isEnabled(); };
            menu(key.mid(1))->menuAction()->setEnabled(std::any_of(entries.begin(), entries.end(), enabled));
        } else if (const Command *command = m_table.find(key); command && command->checked) {
            m_table.action(key)->setChecked(command->checked());
        }
    }
}

void AppMenus::buildGridMenu()
{
    m_gridMenu->setObjectName(QStringLiteral("oPopUpGrid"));
    m_gridMenu->setProperty("helpContextId", menu(QStringLiteral("mnuEdit"))->property("helpContextId"));
    for (const MenuLayout::ContextEntry &entry : MenuLayout::gridMenu()) {
        if (entry.command.isEmpty()) {
            m_gridMenu->addSeparator()->setObjectName(entry.key);
            continue;
        }
        QAction *command = m_table.action(entry.command);
        auto *action = new QAction(command->icon(), resText(entry.captionId), m_gridMenu);
        action->setObjectName(entry.key);
        action->setStatusTip(resText(entry.helpId));
        connect(action, &QAction::triggered, command, &QAction::trigger);
        connect(m_gridMenu, &QMenu::aboutToShow, action,
                [action, command] { action->setEnabled(command->isEnabled()); });
        m_gridMenu->addAction(action);
    }
}

void AppMenus::applyState(AppState state)
{
    const bool document = state == AppState::StateDocument || state == AppState::StateEditing;
    for (const MenuLayout::Menu &each : MenuLayout::menus()) {
        const bool always = each.key == QStringLiteral("mnuFile") || each.key == QStringLiteral("mnuHelp");
        menu(each.key)->menuAction()->setVisible(always || document);
    }
}

void AppMenus::oAppMenu_InitPopupMenu(const MenuLayout::Menu &layout)
{
    if (layout.key == QStringLiteral("mnuFile"))
        rebuildFile(menu(layout.key), layout.entries);
    else if (layout.key == QStringLiteral("mnuMode"))
        nameModes();
    else if (layout.key == QStringLiteral("mnuWindow"))
        rebuildWindow(menu(layout.key), layout.entries);
    updateEntries(layout.entries);
}

/// Of these entries the commands that can be given without a document.
QStringList AppMenus::withoutDocument(const QStringList &keys) const
{
    QStringList kept;
    for (const QString &key : keys) {
        const Command *command = m_table.find(key);
        if (command && command->enabledIn.contains(AppState::StateNoDocument))
            kept += key;
    }
    return kept;
}

void AppMenus::rebuildFile(QMenu *menu, const QStringList &entries)
{
    menu->clear();
    addEntries(menu, m_table.state() == AppState::StateNoDocument ? withoutDocument(entries) : entries);
    QAction *preview = m_table.action(QStringLiteral("mnuFilePrintPreview"));
    preview->setCheckable(true);
    preview->setChecked(m_table.state() == AppState::StatePreview);
    preview->setIconVisibleInMenu(!preview->isChecked()); // its check mark would be a shade behind the picture
    addRecentFiles(menu);
    addEntries(menu, {QStringLiteral("-mnuFileSep"), QStringLiteral("mnuFileExit")});
}

void AppMenus::addRecentFiles(QMenu *menu)
{
    clsMRUFileList &files = m_context.recentFiles;
    if (files.FileCount() > 0)
        addEntries(menu, {QStringLiteral("-mnuFileMRU(0)")});
    for (int i = 1; i <= files.FileCount(); ++i) {
        QAction *action = m_table.action(QStringLiteral("mnuFileMRU(%1)").arg(i));
        if (!action || !files.FileExists(i))
            continue;
        action->setText(files.MenuCaption(i));
        menu->addAction(action);
    }
}

void AppMenus::nameModes()
{
    const frmDoc *document = m_context.documents.active();
    if (!document)
        return;
    for (int mode = 1; mode <= QuizModes::Count; ++mode) {
        QAction *action = m_table.action(modeKey(mode));
        const QString text = quizModeText(mode, document->language(1), document->language(2));
        action->setText(QStringLiteral("&%1 ").arg(mode) + FormTexts::escapeMnemonic(text));
        action->setStatusTip(resText(m_table.find(modeKey(mode))->helpId) + QStringLiteral(" ") + text);
    }
}

void AppMenus::rebuildWindow(QMenu *menu, const QStringList &fixedEntries)
{
    menu->clear();
    addEntries(menu, fixedEntries);
    bool first = true;
    for (frmDoc *document : m_context.documents.open()) {
        if (!document->frame()->isVisible())
            continue;
        if (std::exchange(first, false))
            menu->addSeparator();
        QString caption = document->Caption();
        if (caption.size() > LongestCaption)
            caption = caption.left(LongestCaption) + QStringLiteral("...");
        QAction *action = m_table.action(MenuLayout::documentKey(document->Tag()));
        action->setText(FormTexts::escapeMnemonic(TextLanguage::isolated(caption)));
        action->setCheckable(true);
        action->setChecked(document == m_context.documents.active());
        menu->addAction(action);
    }
}
