#pragma once

#include "document/FilePrompts.h"

class AlertBox;
class CommonDialogs;
class QWidget;
class clsCommDlg;

/// Asks for files with the common dialogs, owned by the main window.
class CommonFilePrompts : public FilePrompts
{
public:
    CommonFilePrompts(CommonDialogs &dialogs, AlertBox &alertBox);

    void setOwner(QWidget *owner) { m_owner = owner; }

    QString askOpen(const QString &folder) override;
    QString askSave(const QString &proposed, const QString &folder) override;
    QString askImport(const QString &folder) override;
    QString askExport(const QString &proposed, const QString &folder) override;

private:
    QString ask(clsCommDlg &dialog, int action) const;

    CommonDialogs &m_dialogs;
    AlertBox &m_alertBox;
    QWidget *m_owner = nullptr;
};
