#pragma once

#include <QObject>

class QApplication;

/// Keeps text boxes from asking for the clipboard, when a key pastes or their menu opens, while the program that owns
/// it hangs: their window would stand still.
class PasteGuard : public QObject
{
    Q_OBJECT

public:
    explicit PasteGuard(QApplication &application);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
