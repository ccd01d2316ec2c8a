#pragma once

#include <QObject>

class QApplication;

/// Closes what has dropped down in a dialog that ends, such as the list of names under a file's name. While it is open
/// the toolkit takes no notice of the window that gets the keys next, which would then stay without its shortcuts.
class PopupCloser : public QObject
{
    Q_OBJECT

public:
    explicit PopupCloser(QApplication &application);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
