#include "print/QtDialogs.h"

#include "print/QtPrinter.h"
#include "resources/StringTable.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPushButton>
#include <QStandardPaths>

namespace {

constexpr int FileTopic = 1110;
constexpr int PrintTopic = 1120;

void setTopic(QDialog &dialog, int helpContextId)
{
    dialog.setProperty("helpContextId", helpContextId);
}

/// The page setup shows only what the layout heeds: it has margins of its own.
void hideMargins(const QPageSetupDialog &dialog)
{
    if (const auto *margin = dialog.findChild<QWidget *>(QStringLiteral("topMargin")))
        margin->parentWidget()->hide();
}

/// Pages and copies show at once, not only behind the dialog's own button.
void showOptions(const QPrintDialog &dialog)
{
    const auto *buttons = dialog.findChild<QDialogButtonBox *>();
    if (!buttons)
        return;
    for (QAbstractButton *button : buttons->buttons()) {
        if (buttons->buttonRole(button) == QDialogButtonBox::ResetRole)
            button->click();
    }
}

PrintChoice choiceOf(const QPrintDialog &dialog, const QPrinter &printer)
{
    PrintChoice choice;
    choice.copies = std::max(1, printer.copyCount());
    choice.collate = printer.collateCopies();
    choice.pageNumbers = dialog.printRange() == QAbstractPrintDialog::PageRange;
    choice.selection = dialog.printRange() == QAbstractPrintDialog::Selection;
    choice.fromPage = dialog.fromPage();
    choice.toPage = dialog.toPage();
    return choice;
}

} // namespace

QtDialogs::QtDialogs(QtPrinter &printer, HelpCall helpCall)
    : m_printer(printer)
    , m_helpCall(std::move(helpCall))
{
}

QString QtDialogs::startFolder(const FileRequest &request) const
{
    if (QFileInfo(request.fileName).isAbsolute())
        return QFileInfo(request.fileName).path();
    for (const QString &folder : {request.folder, m_lastFolder}) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return folder;
    }
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

std::optional<FileChoice> QtDialogs::show(QFileDialog &dialog, const FileRequest &request)
{
    setTopic(dialog, FileTopic);
    dialog.setNameFilters(request.nameFilters);
    dialog.selectNameFilter(request.nameFilters.value(request.filterIndex));
    dialog.selectFile(QFileInfo(request.fileName).fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    m_lastFolder = dialog.directory().absolutePath();
    const qsizetype filter = request.nameFilters.indexOf(dialog.selectedNameFilter());
    return FileChoice{dialog.selectedFiles().constFirst(), int(std::max<qsizetype>(0, filter))};
}

std::optional<FileChoice> QtDialogs::openFile(const FileRequest &request)
{
    QFileDialog dialog(request.owner, request.title, startFolder(request));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(request.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setDefaultSuffix(request.defaultExt);
    return show(dialog, request);
}

std::optional<FileChoice> QtDialogs::saveFile(const FileRequest &request)
{
    QFileDialog dialog(request.owner, request.title, startFolder(request));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    return show(dialog, request);
}

bool QtDialogs::fileExists(const QString &path)
{
    return QFileInfo::exists(path);
}

bool QtDialogs::confirmReplace(QWidget *owner, const QString &title, const QString &path)
{
    QMessageBox box(QMessageBox::Warning, title, resText(12402).arg(QFileInfo(path).fileName()),
                    QMessageBox::Yes | QMessageBox::No, owner);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

std::optional<PrintChoice> QtDialogs::choosePages(const PrintRequest &request)
{
    QPrinter &printer = m_printer.printer();
    printer.setCopyCount(1);
    printer.setCollateCopies(request.collate);
    QPrintDialog dialog(&printer, request.owner);
    setTopic(dialog, PrintTopic);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, request.offerPageNumbers);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, request.offerSelection);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    dialog.setMinMax(request.minPage, request.maxPage);
    dialog.setFromTo(request.fromPage, request.toPage);
    dialog.setPrintRange(request.pageNumbers ? QAbstractPrintDialog::PageRange : QAbstractPrintDialog::AllPages);
    showOptions(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    const PrintChoice choice = choiceOf(dialog, printer);
    m_printer.settle();
    return choice;
}

bool QtDialogs::setUpPrinter(QWidget *owner)
{
    QPageSetupDialog dialog(&m_printer.printer(), owner);
    hideMargins(dialog);
    setTopic(dialog, PrintTopic);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    m_printer.settle();
    return true;
}

bool QtDialogs::callHelp(QWidget *, const QString &file, int command, int key)
{
    return m_helpCall(file, command, key);
}
