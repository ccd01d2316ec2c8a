#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// Which commands stand in which menu and toolbar: the order that a user sees. What a command is called and does stands
/// in the command table.
namespace MenuLayout {

/// A drop-down of the menu bar. An entry with a dash before its key is a separator, one with a ">" a menu of its own.
struct Menu
{
    QString key;
    int captionId;
    int helpContextId; ///< help topic of the drop-down
    QStringList entries;
};

/// A menu that an entry of another one opens; its help topic is that of the drop-down it belongs to.
struct Submenu
{
    QString key;
    int captionId;
    int helpId; ///< status text while the entry that opens it is highlighted
    QStringList entries;
};

/// One button of a toolbar.
struct Button
{
    QString key; ///< the button's name; empty: a separator
    int toolTipId;
    int hoverHelpId; ///< status text while the pointer is over it
    int whatsThisId;
    QString command; ///< key of the command that a click runs
};

/// An entry of the grid's context menu.
struct ContextEntry
{
    QString key;
    int captionId;
    QString command; ///< empty: a separator
    int helpId;
};

/// The command that makes the document in a slot of the document list the active one.
inline QString documentKey(int slot)
{
    return QStringLiteral("mnuWin(%1)").arg(slot);
}

/// The seven menus in the order of the menu bar with their fixed entries. When File drops down, what needs a document
/// is left out while there is none, and the recent files are added; Window gets the open documents.
const std::vector<Menu> &menus();
/// Throws std::out_of_range for an unknown key.
const Submenu &submenu(const QString &key);

const std::vector<Button> &standardButtons();
const std::vector<Button> &previewButtons();
const std::vector<ContextEntry> &gridMenu();

} // namespace MenuLayout
