#pragma once

#include <QObject>

#include <functional>

class QAction;
class QMenu;
class QMenuBar;
class modSBFunc;

/// Shows in panel 0 of the status bar what the highlighted menu entry does, and "Ready" when the highlight leaves.
class modSBMenuHelp : public QObject
{
    Q_OBJECT

public:
    /// The help text of an entry; an empty one leaves the status bar as it is.
    using HelpText = std::function<QString(const QAction *)>;

    explicit modSBMenuHelp(modSBFunc &status, QObject *parent = nullptr);

    /// Watches the entries of a menu. Disabled entries and separators show nothing.
    void watch(QMenu *menu, HelpText helpText);

    /// Watches the titles of a menu bar: title number i, counted from 0, shows string 100 + i.
    void watch(QMenuBar *menuBar);

    /// Watches a menu that the platform draws itself, such as a document window's system menu. Its entries have no
    /// texts in the string table: the panel is cleared while one is highlighted.
    void watchSystemMenu(QMenu *menu);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    modSBFunc &m_status;
    QMenuBar *m_menuBar = nullptr;
};
