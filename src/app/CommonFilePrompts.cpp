#include "app/CommonFilePrompts.h"

#include "print/dialogs/clsCommDlg.h"
#include "resources/StringTable.h"

CommonFilePrompts::CommonFilePrompts(CommonDialogs &dialogs, AlertBox &alertBox)
    : m_dialogs(dialogs)
    , m_alertBox(alertBox)
{
}

QString CommonFilePrompts::askOpen(const QString &folder)
{
    clsCommDlg dialog(m_dialogs, m_alertBox);
    dialog.DialogTitle = resText(717);
    dialog.InitDir = folder;
    dialog.flags = clsCommDlg::Explorer | clsCommDlg::FileMustExist | clsCommDlg::HideReadOnly;
    return ask(dialog, clsCommDlg::ActionOpen);
}

QString CommonFilePrompts::askSave(const QString &proposed, const QString &folder)
{
    clsCommDlg dialog(m_dialogs, m_alertBox);
    dialog.DialogTitle = resText(718);
    dialog.InitDir = folder;
    dialog.FileName = proposed;
    dialog.flags =
        clsCommDlg::Explorer | clsCommDlg::OverwritePrompt | clsCommDlg::HideReadOnly | clsCommDlg::ExtensionDifferent;
    return ask(dialog, clsCommDlg::ActionSaveAs);
}

QString CommonFilePrompts::ask(clsCommDlg &dialog, int action) const
{
    dialog.Owner = m_owner;
    dialog.Filter = resText(720);
    dialog.DefaultExt = QStringLiteral("gla");
    try {
        dialog.setAction(action);
    } catch (const CommDlgError &) {
        return {};
    }
    return dialog.FileName;
}
