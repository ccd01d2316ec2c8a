#pragma once

#include "app/MenuLayout.h"

#include <QHash>
#include <QObject>

class CommandTable;
class QAction;
class QMenu;
class QMenuBar;
class modSBMenuHelp;
struct AppContext;
enum class AppState;

/// The menu bar and the grid's context menu, built from the command table. File, Mode and Window are brought up to date
/// each time they drop down,
/// as are check marks and the menus within them.
class AppMenus : public QObject
{
    Q_OBJECT

public:
    /// help shows what the entries of the grid's menu do.
    AppMenus(QMenuBar *tbrMenu, CommandTable &table, const AppContext &context, modSBMenuHelp &help,
             QObject *parent = nullptr);

    /// Shows only File and Help where no document can be worked on.
    void applyState(AppState state);

    /// A drop-down by the key of its title, for example "mnuMode".
    QMenu *menu(const QString &key) const { return m_menus.value(key); }
    QMenu *gridMenu() const { return m_gridMenu; }

private:
    void addMenu(QMenuBar *menuBar, const MenuLayout::Menu &layout, int helpId);
    QMenu *submenu(const MenuLayout::Submenu &layout, QMenu *parent);
    void updateEntries(const QStringList &keys);
    void oAppMenu_InitPopupMenu(const MenuLayout::Menu &layout);
    QStringList withoutDocument(const QStringList &keys) const;
    void rebuildFile(QMenu *menu, const QStringList &entries);
    void addRecentFiles(QMenu *menu);
    void nameModes();
    void rebuildWindow(QMenu *menu, const QStringList &fixedEntries);
    void addEntries(QMenu *menu, const QStringList &keys);
    void buildGridMenu();

    CommandTable &m_table;
    const AppContext &m_context;
    QHash<QString, QMenu *> m_menus;
    QMenu *m_gridMenu;
};
