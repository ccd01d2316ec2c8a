#include "print/dialogs/QtDialogs.h"

#include "print/dialogs/PrintDialog.h"
#include "print/dialogs/frmPageSetup.h"
#include "print/printer/QtPrinter.h"
#include "resources/StringTable.h"
#include "services/help/HelpDisplay.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QIdentityProxyModel>
#include <QLineEdit>
#include <QMessageBox>
#include <QStandardPaths>

namespace {

constexpr int FileTopic = 1110;
constexpr int PrintTopic = 1120;
constexpr int TopicByNumber = 1; ///< the one command of a help call that names a topic

/// The files of a dialog. A folder has no size: its empty cell tells a screen reader what it is instead.
class NamedFiles : public QIdentityProxyModel
{
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        static constexpr int TypeColumn = 2;
        const bool empty = role == Qt::AccessibleTextRole && index.column() != TypeColumn &&
                           index.data(Qt::DisplayRole).toString().isEmpty();
        return empty ? index.siblingAtColumn(TypeColumn).data() : QIdentityProxyModel::data(index, role);
    }
};

void setTopic(QDialog &dialog, int helpContextId)
{
    dialog.setProperty("helpContextId", helpContextId);
}

} // namespace

QtDialogs::QtDialogs(QtPrinter &printer, HelpDisplay &help)
    : m_printer(printer)
    , m_help(help)
{
}

QString QtDialogs::startFolder(const FileRequest &request) const
{
    if (QFileInfo(request.fileName).isAbsolute())
        return QFileInfo(request.fileName).path();
    return startFolder(request.folder);
}

QString QtDialogs::startFolder(const QString &folder) const
{
    for (const QString &candidate : {folder, m_lastFolder}) {
        if (!candidate.isEmpty() && QFileInfo(candidate).isDir())
            return candidate;
    }
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

std::optional<FileChoice> QtDialogs::show(QFileDialog &dialog, const FileRequest &request)
{
    setTopic(dialog, FileTopic);
    dialog.setProxyModel(new NamedFiles(&dialog));
    dialog.setNameFilters(request.nameFilters);
    dialog.selectNameFilter(request.nameFilters.value(request.filterIndex));
    dialog.selectFile(QFileInfo(request.fileName).fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    m_lastFolder = QFileInfo(dialog.selectedFiles().constFirst()).absolutePath();
    const qsizetype filter = request.nameFilters.indexOf(dialog.selectedNameFilter());
    return FileChoice{dialog.selectedFiles().constFirst(), int(std::max<qsizetype>(0, filter))};
}

std::optional<FileChoice> QtDialogs::openFile(const FileRequest &request)
{
    QFileDialog dialog(request.owner, request.title, startFolder(request));
    dialog.setFileMode(request.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setDefaultSuffix(request.defaultExt);
    return show(dialog, request);
}

std::optional<FileChoice> QtDialogs::saveFile(const FileRequest &request)
{
    QFileDialog dialog(request.owner, request.title, startFolder(request));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
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
    std::unique_ptr<QPrinter> printer = m_printer.copy();
    printer->setCollateCopies(request.collate);
    PrintDialog dialog(*printer, m_printer, request);
    setTopic(dialog, PrintTopic);
    proposeFile(dialog, *printer, request);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    const PrintChoice choice = dialog.choice();
    m_printer.adopt(std::move(printer));
    return choice;
}

/// Without a file that was printed to before, the dialog proposes one in the user's home.
void QtDialogs::proposeFile(const QPrintDialog &dialog, const QPrinter &printer, const PrintRequest &request) const
{
    auto *box = dialog.findChild<QLineEdit *>(QStringLiteral("filename"));
    if (box && printer.outputFileName().isEmpty())
        box->setText(startFolder(request.folder) + u'/' + QFileInfo(box->text()).fileName());
}

bool QtDialogs::setUpPrinter(QWidget *owner)
{
    frmPageSetup dialog(offeredPrinters(), m_printer.setup(), owner);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    m_printer.setUp(dialog.setup());
    return true;
}

bool QtDialogs::callHelp(QWidget *, const QString &file, int command, int key)
{
    HelpTarget target = HelpTarget::ofProgram();
    target.HTMLHelpFile = file;
    return m_help.HtmlHelp(target, command == TopicByNumber ? HH_HELP_CONTEXT : HH_DISPLAY_TOC, key);
}
