#include "print/dialogs/clsCommDlg.h"

#include "print/rules/FileDialogRules.h"
#include "print/rules/PrinterDevice.h"
#include "resources/StringTable.h"
#include "services/AlertBox.h"

#include <QApplication>
#include <QFileInfo>

clsCommDlg::clsCommDlg(CommonDialogs &dialogs, AlertBox &alertBox)
    : m_dialogs(dialogs)
    , m_alertBox(alertBox)
{
}

void clsCommDlg::setAction(int action)
{
    m_action = action;
    if (!Owner)
        Owner = QApplication::activeWindow();
    switch (action) {
    case ActionOpen:
        return openFile();
    case ActionSaveAs:
        return saveFile();
    case ActionPrint:
        return print();
    case ActionHelp:
        return callHelp();
    default:
        return;
    }
}

FileRequest clsCommDlg::fileRequest() const
{
    FileRequest request;
    request.owner = Owner;
    request.title = DialogTitle;
    request.folder = InitDir;
    request.fileName = FileName;
    request.nameFilters = FileDialogRules::nameFilters(Filter);
    request.filterIndex = std::max(0, FilterIndex - 1);
    request.defaultExt = DefaultExt;
    request.mustExist = flags & FileMustExist;
    return request;
}

void clsCommDlg::takeFile(const FileChoice &choice)
{
    FileName = choice.path;
    FileTitle = QFileInfo(choice.path).fileName();
    FilterIndex = choice.filterIndex + 1;
}

void clsCommDlg::openFile()
{
    const std::optional<FileChoice> choice = m_dialogs.openFile(fileRequest());
    if (!choice)
        throw CommDlgCancelled();
    takeFile(*choice);
}

// The extension is settled before the question whether a file may be replaced, so that the question is about the file
// that will be written. "No" leads back to the dialog.
void clsCommDlg::saveFile()
{
    FileRequest request = fileRequest();
    if (!request.fileName.isEmpty() && !DefaultExt.isEmpty())
        request.fileName = FileDialogRules::withAppendedExtension(request.fileName, DefaultExt);
    std::optional<FileChoice> choice;
    do {
        choice = m_dialogs.saveFile(request);
        if (!choice)
            throw CommDlgCancelled();
        const QString chosen = FileDialogRules::extension(choice->path);
        flags &= ~ExtensionDifferent;
        if (!DefaultExt.isEmpty()) {
            if (!chosen.isEmpty() && chosen.compare(DefaultExt, Qt::CaseInsensitive) != 0)
                flags |= ExtensionDifferent;
            choice->path = FileDialogRules::withExtension(choice->path, DefaultExt);
        }
        request.fileName = choice->path;
        request.filterIndex = choice->filterIndex;
    } while (!mayReplace(choice->path));
    takeFile(*choice);
}

bool clsCommDlg::mayReplace(const QString &path)
{
    return !(flags & OverwritePrompt) || !m_dialogs.fileExists(path) ||
           m_dialogs.confirmReplace(Owner, DialogTitle, path);
}

void clsCommDlg::print()
{
    try {
        if (!(flags & PrintSetup))
            choosePages();
        else if (!m_dialogs.setUpPrinter(Owner))
            throw CommDlgCancelled();
    } catch (const PrinterError &error) {
        reportPrinterError(m_alertBox, Owner, error.text());
        throw CommDlgError(error.what());
    }
}

void clsCommDlg::reportPrinterError(AlertBox &alertBox, QWidget *owner, const QString &text)
{
    alertBox.show(owner, {.prompt = text, .title = resText(12400), .exclamation = true});
}

void clsCommDlg::choosePages()
{
    PrintRequest request;
    request.owner = Owner;
    request.folder = InitDir;
    request.minPage = request.fromPage = MinPage;
    request.maxPage = request.toPage = MaxPage;
    request.pageNumbers = flags & PageNumbers;
    request.offerPageNumbers = !(flags & NoPageNumbers);
    request.offerSelection = !(flags & NoSelection);
    request.collate = flags & Collate;
    const std::optional<PrintChoice> choice = m_dialogs.choosePages(request);
    if (!choice)
        throw CommDlgCancelled();
    Copies = choice->copies;
    FromPage = choice->fromPage;
    ToPage = choice->toPage;
    flags &= ~(Selection | PageNumbers | Collate);
    flags |=
        (choice->selection ? Selection : 0) | (choice->pageNumbers ? PageNumbers : 0) | (choice->collate ? Collate : 0);
}

void clsCommDlg::callHelp()
{
    if (!m_dialogs.callHelp(Owner, HelpFile, HelpCommand, HelpKey.toInt()))
        throw CommDlgError("no such help");
}
