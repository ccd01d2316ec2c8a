#pragma once

#include <QObject>

class QApplication;

/// Opens the context menu of what has the focus by Shift+F10, which the toolkit leaves to the menu key alone.
class ContextMenuKey : public QObject
{
    Q_OBJECT

public:
    explicit ContextMenuKey(QApplication &application);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
