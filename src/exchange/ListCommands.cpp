#include "exchange/ListCommands.h"

#include "document/DocumentList.h"
#include "document/EditCommands.h"
#include "document/FileCommands.h"
#include "document/FilePrompts.h"
#include "document/GridContent.h"
#include "document/ctlGrid.h"
#include "exchange/frmImport.h"
#include "platform/files/AtomicFile.h"
#include "resources/StringTable.h"
#include "services/AlertBox.h"
#include "services/Hourglass.h"
#include "services/rules/TextDigits.h"
#include "services/status/modSBFunc.h"

#include <QClipboard>
#include <QFileInfo>

namespace {

enum TextId {
    OneImported = 14374,
    OneExported,
    ClipboardName = 14560,
    CannotWrite = 14562,
    Imported = 14567,
    Exported,
    LosesLetters
};

QString withNumber(int one, int many, qsizetype number)
{
    return number == 1 ? resText(one) : resText(many).arg(TextDigits::numbers().toString(qlonglong(number)));
}

} // namespace

ListCommands::ListCommands(const Needs &needs, const QByteArray &codePage)
    : m_needs(needs)
    , m_surroundings{codePage, QLocale()}
{
}

void ListCommands::importFile(QWidget *owner)
{
    const frmDoc *active = m_needs.documents.active();
    const QString path = m_needs.prompts.askImport(active ? active->folder() : QString());
    if (path.isEmpty())
        return;
    ListReader::Result opened;
    {
        const Hourglass hourglass;
        opened = ListReader::openFile(path, m_surroundings);
    }
    import(opened, QFileInfo(path).fileName(), owner);
}

void ListCommands::pasteList(QWidget *owner)
{
    import(ListReader::openText(m_needs.clipboard.text()), resText(ClipboardName), owner);
}

void ListCommands::import(const ListReader::Result &opened, const QString &name, QWidget *owner)
{
    if (!opened.source)
        return warn(ListReader::message(opened.error).arg(name));
    m_needs.status.ShowStatus(modSBFunc::DialogOpen);
    frmImport dialog(*opened.source, name, m_needs.documents.active() != nullptr, owner);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    m_needs.status.ShowStatus(modSBFunc::Ready);
    frmDoc *document = m_needs.documents.active(); // closed meanwhile, perhaps
    if (!accepted || (!dialog.intoNew() && !document))
        return;
    const Hourglass hourglass;
    Vocabulary words = dialog.takeWords();
    const QString note = withNumber(OneImported, Imported, words.rows() - 1);
    if (!dialog.intoNew())
        return m_needs.edit.Import(*document, words, note);
    m_needs.files.openUntitled(std::move(words));
    m_needs.status.SBSetText(0, modSBFunc::SBT_SUNKEN, note);
}

void ListCommands::exportActive()
{
    frmDoc *document = m_needs.documents.active();
    if (!document)
        return;
    document->commitRunningEdit();
    const QString path = m_needs.prompts.askExport(document->Caption(), document->folder());
    if (path.isEmpty())
        return;
    const Vocabulary words = GridContent::read(*document->Rutor());
    const ListWriter::Format format = ListWriter::formatOf(path).value_or(ListWriter::Format::Tabs);
    QString error;
    {
        const Hourglass hourglass;
        AtomicFile::write(path, ListWriter::write(words, format, document->Caption()), &error);
    }
    if (!error.isEmpty())
        return warn(resText(CannotWrite).arg(path, error));
    if (ListWriter::losesLetters(words))
        warn(resText(LosesLetters).arg(path));
    m_needs.status.SBSetText(0, modSBFunc::SBT_SUNKEN, withNumber(OneExported, Exported, words.filledRows() - 1));
}

void ListCommands::warn(const QString &text)
{
    m_needs.alert.show(nullptr,
                       {.prompt = text, .buttons = Alert::OkHelp, .helpId = 3030, .sound = true, .exclamation = true});
}
