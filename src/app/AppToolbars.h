#pragma once

#include "app/MenuLayout.h"

#include <QHash>
#include <QObject>

class AppMenus;
class CommandTable;
class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
enum class AppState;

/// The two bands of buttons below the menu bar: STANDARD, and PREVIEW that takes its place during the print preview.
class AppToolbars : public QObject
{
    Q_OBJECT

public:
    AppToolbars(QMainWindow &window, CommandTable &table, const AppMenus &menus);

    void applyState(AppState state);

    /// Two buttons of the standard bar show a state by their picture: "Model" the quiz mode, "Quiz" the kind of quiz.
    void setPicture(const QString &button, int pictureNumber);
    int pictureOf(const QString &button) const;
    void setToolTip(const QString &button, const QString &text);

    /// String id of what the button at a point of the main window (pixels) is for: 0 for a separator, -1 elsewhere.
    int whatsThisAt(const QPoint &point) const;

    QToolBar *standard() const { return m_standard; }
    QToolBar *preview() const { return m_preview; }

private:
    /// key is the band's, name that of the bar in it.
    QToolBar *addBand(QMainWindow &window, const QString &key, const QString &name, int titleId,
                      const std::vector<MenuLayout::Button> &buttons);
    QAction *addButton(QToolBar *bar, const MenuLayout::Button &button);
    void addDropDown(const QString &button, QMenu *menu);

    CommandTable &m_table;
    QHash<QString, QAction *> m_standardButtons;
    QToolBar *m_standard;
    QToolBar *m_preview;
};
