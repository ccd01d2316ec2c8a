#pragma once

#include <QObject>

class ClipboardOwner;
class QApplication;

/// Keeps the program from asking for the clipboard while the program that owns it hangs: its windows would stand still.
/// Text boxes are kept by itself, when a key pastes or their menu opens; commands ask it first.
class PasteGuard : public QObject
{
    Q_OBJECT

public:
    PasteGuard(QApplication &application, ClipboardOwner &owner);

    bool mayPaste() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ClipboardOwner &m_owner;
};
