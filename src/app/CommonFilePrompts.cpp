#include "app/CommonFilePrompts.h"

#include "exchange/rules/ListWriter.h"
#include "print/dialogs/clsCommDlg.h"
#include "print/rules/FileDialogRules.h"
#include "resources/StringTable.h"

namespace {

enum TextId { ImportTitle = 14570, ExportTitle = 14571, ImportFilter = 14572, ExportFilter = 14573 };

} // namespace

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

QString CommonFilePrompts::askImport(const QString &folder)
{
    FileRequest request;
    request.owner = m_owner;
    request.title = resText(ImportTitle);
    request.folder = folder;
    request.nameFilters = FileDialogRules::nameFilters(resText(ImportFilter));
    request.mustExist = true;
    const std::optional<FileChoice> choice = m_dialogs.openFile(request);
    return choice ? choice->path : QString();
}

/// The name gets the end that belongs to the chosen form unless it has that of another one. Whether a file may be
/// replaced is asked about the name that results; "No" leads back to the dialog.
QString CommonFilePrompts::askExport(const QString &proposed, const QString &folder)
{
    static const QStringList ends{QStringLiteral(".csv"), QStringLiteral(".txt"), QStringLiteral(".html"),
                                  QStringLiteral(".anki.txt")};
    FileRequest request;
    request.owner = m_owner;
    request.title = resText(ExportTitle);
    request.folder = folder;
    request.fileName = proposed;
    request.nameFilters = FileDialogRules::nameFilters(resText(ExportFilter));
    for (;;) {
        const std::optional<FileChoice> choice = m_dialogs.saveFile(request);
        if (!choice)
            return {};
        const bool named = ListWriter::formatOf(choice->path).has_value();
        request.fileName = choice->path + (named ? QString() : ends.value(choice->filterIndex));
        request.filterIndex = choice->filterIndex;
        if (!m_dialogs.fileExists(request.fileName) ||
            m_dialogs.confirmReplace(m_owner, request.title, request.fileName))
            return request.fileName;
    }
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
