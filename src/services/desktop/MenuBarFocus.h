#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QApplication;

/// Gives the keys back to what had them before the menu bar. When a window loses the keys while a title of its menu bar
/// is marked, the toolkit lets go of the title and forgets where the keys were; when the window gets them again, the
/// menu bar would keep them and do nothing with them.
class MenuBarFocus : public QObject
{
    Q_OBJECT

public:
    explicit MenuBarFocus(QApplication &application);

private:
    void onFocusChanged(QWidget *old, QWidget *now);

    QPointer<QWidget> m_before; ///< what had the keys before the menu bar
};
