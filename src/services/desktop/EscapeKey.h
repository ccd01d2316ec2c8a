#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QApplication;

/// Keeps an Escape that has closed the list of a drop-down box from the dialog, which it would close as well: where a
/// list has no keys of its own, as on Wayland, the toolkit sends the key on.
class EscapeKey : public QObject
{
    Q_OBJECT

public:
    explicit EscapeKey(QApplication &application);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPointer<QWidget> m_list; ///< that was open when the key went down
};
