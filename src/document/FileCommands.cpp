#include "document/FileCommands.h"

#include "document/DocumentCopies.h"
#include "document/DocumentList.h"
#include "document/FilePrompts.h"
#include "document/GridContent.h"
#include "document/ctlGrid.h"
#include "document/rules/RowNumbers.h"
#include "document/rules/file/VocabularyFile.h"
#include "resources/StringTable.h"
#include "resources/TextLanguage.h"
#include "services/AlertBox.h"
#include "services/Hourglass.h"
#include "services/rules/TextDigits.h"
#include "services/settings/clsMRUFileList.h"
#include "services/status/modSBFunc.h"

#include <QGuiApplication>
#include <QLocale>

namespace {

using VocabularyCodec::Outcome;

enum HelpTopic {
    SavingTopic = 1110,
    ClosingTopic = 1400,
    AlreadyOpenTopic = 1410,
    BadFormatTopic = 1420,
    OlderTopic = 1430,
    NewerTopic = 1440
};

/// The hourglass pointer, a text in panel 0 and the progress bar, for as long as a file is read or written.
class BusyStatus
{
public:
    BusyStatus(modSBFunc &status, int textId, const QString &path, qint64 maximum)
        : m_status(status)
    {
        m_status.showText(resText(textId) + TextLanguage::isolated(VocabularyFile::title(path)));
        m_status.createProgress(maximum);
    }
    ~BusyStatus()
    {
        m_status.destroyProgress();
        m_status.SBSetText(0, modSBFunc::SBT_SUNKEN, resText(modSBFunc::Ready)); // a search holds back texts by id
        m_status.ShowStatus(modSBFunc::Ready);
    }
    BusyStatus(const BusyStatus &) = delete;
    BusyStatus &operator=(const BusyStatus &) = delete;

private:
    modSBFunc &m_status;
    Hourglass m_hourglass;
};

/// textId: of a text about the rows (%1) that a file (%2) cannot hold, and about the name of language 1 (%3).
QString unstoredText(int textId, const frmDoc &document, const std::vector<qsizetype> &rows)
{
    const QString language = document.language(1);
    return resText(textId).arg(rowNumbersText(rows), document.DocName(), language.isEmpty() ? resText(501) : language);
}

QString withTitle(int textId, const QString &path)
{
    return resText(textId).replace(QStringLiteral("%1"), VocabularyFile::title(path));
}

} // namespace

FileCommands::FileCommands(const Needs &needs, const CodePage &codePage, QObject *parent)
    : QObject(parent)
    , m_needs(needs)
    , m_codePage(codePage)
{
    connect(&m_needs.documents, &DocumentList::created, this, [this](frmDoc *document) { document->setCloser(*this); });
}

bool FileCommands::close(frmDoc &document)
{
    if (!confirmClose(document))
        return false;
    document.endEdit();
    m_needs.documents.remove(&document);
    return true;
}

void FileCommands::newDocument()
{
    frmDoc *document = m_needs.documents.create();
    document->setCaption(m_needs.documents.nextUntitledCaption());
    document->setDirty(false);
    document->showDocument();
    Q_EMIT opened(document);
}

frmDoc &FileCommands::openUntitled(Vocabulary &&vocabulary)
{
    newDocument(); // whoever keeps copies sees the words come
    frmDoc &document = *m_needs.documents.open().back();
    for (std::vector<QString> *column : {&vocabulary.first, &vocabulary.second}) {
        if (vocabulary.rows() > 0 && column->front().isEmpty())
            column->front() = document.language(column == &vocabulary.first ? 1 : 2);
    }
    GridContent::fill(*document.Rutor(), std::move(vocabulary));
    document.Rutor()->growCutRows();
    document.setDirty(true);
    document.refreshQuizMode();
    return document;
}

void FileCommands::open()
{
    const frmDoc *active = m_needs.documents.active();
    const QString path = m_needs.prompts.askOpen(active ? active->folder() : QString());
    if (!path.isEmpty())
        LoadVocabulary(path);
}

void FileCommands::save()
{
    if (frmDoc *document = m_needs.documents.active()) {
        document->commitRunningEdit();
        saveAndTell(*document, pathOrAsk(*document));
        document->Rutor()->setFocus();
    }
}

void FileCommands::saveAs()
{
    if (frmDoc *document = m_needs.documents.active()) {
        document->commitRunningEdit();
        saveAndTell(*document, askPath(*document));
    }
}

void FileCommands::closeActive()
{
    if (frmDoc *document = m_needs.documents.active()) {
        document->commitRunningEdit();
        document->frame()->close();
    }
}

bool FileCommands::closeAll()
{
    const std::vector<frmDoc *> documents = m_needs.documents.open();
    const auto close = [](frmDoc *document) { return document->frame()->close(); };
    // A window whose question is on the screen already says that it closes, and stays.
    return std::all_of(documents.begin(), documents.end(), close) && m_needs.documents.open().empty();
}

QString FileCommands::pathOrAsk(const frmDoc &document)
{
    return document.DocName().isEmpty() ? askPath(document) : document.DocName();
}

QString FileCommands::askPath(const frmDoc &document)
{
    return m_needs.prompts.askSave(document.Caption(), document.folder());
}

FileCommands::SaveOutcome FileCommands::saveUnder(frmDoc &document, const QString &path, SaveReport &report)
{
    if (path.isEmpty())
        return SaveOutcome::Cancelled;
    if (path == document.DocName() && !mayOverwrite(document))
        return SaveOutcome::Refused;
    report = SaveVocabulary(document, path);
    m_needs.recentFiles.AddFile(path);
    return report.error.isEmpty() ? SaveOutcome::Saved : SaveOutcome::Failed;
}

void FileCommands::saveAndTell(frmDoc &document, const QString &path)
{
    SaveReport report;
    if (saveUnder(document, path, report) == SaveOutcome::Failed)
        tell(Tone::Warning, resText(12625).arg(path, report.error));
    else if (const auto &rows = report.unstoredRows; !rows.empty())
        tell(Tone::Warning, unstoredText(14063, document, rows), SavingTopic);
}

bool FileCommands::mayOverwrite(const frmDoc &document)
{
    const FileStamp now = FileStamp::of(document.DocName());
    if (!now.exists() || now == document.fileStamp)
        return true;
    const QString prompt = resText(12610).arg(document.DocName());
    return m_needs.alert.show(nullptr, {.prompt = prompt, .buttons = Alert::YesNo, .sound = true}) ==
           AlertBox::AnswerYes;
}

bool FileCommands::confirmClose(frmDoc &document)
{
    document.commitRunningEdit();
    if (!document.Dirty())
        return true;
    const QString prompt = resText(700) + QStringLiteral(" [") + TextLanguage::isolated(document.Caption()) +
                           QStringLiteral("] ") + resText(701) + QStringLiteral("\r\n") + resText(702);
    const AlertBox::Answer answer =
        m_needs.alert.show(nullptr, {.prompt = prompt, .buttons = Alert::YesNoCancelHelp, .helpId = ClosingTopic});
    if (answer == AlertBox::AnswerNo)
        Q_EMIT givenUp(&document);
    if (answer != AlertBox::AnswerYes)
        return answer != AlertBox::AnswerCancel;
    SaveReport report;
    const QString path = pathOrAsk(document);
    const SaveOutcome outcome = saveUnder(document, path, report);
    if (outcome == SaveOutcome::Saved && report.unstoredRows.empty())
        return true;
    return outcome != SaveOutcome::Refused && mayCloseUnsaved(document, path, report);
}

bool FileCommands::mayCloseUnsaved(frmDoc &document, const QString &path, const SaveReport &report)
{
    if (!m_needs.copies.secure(document))
        return mayLose(document, report);
    if (!report.error.isEmpty())
        tell(Tone::Warning, resText(12626).arg(path, report.error));
    else if (!report.unstoredRows.empty())
        tell(Tone::Warning, unstoredText(14064, document, report.unstoredRows), SavingTopic);
    return true;
}

bool FileCommands::mayLose(const frmDoc &document, const SaveReport &report)
{
    const QString prompt = report.unstoredRows.empty() ? resText(12627).arg(document.Caption())
                                                       : unstoredText(14065, document, report.unstoredRows);
    return m_needs.alert.show(nullptr,
                              {.prompt = prompt, .buttons = Alert::YesNo, .sound = true, .exclamation = true}) ==
           AlertBox::AnswerYes;
}

void FileCommands::tell(Tone tone, const QString &prompt, int helpId)
{
    m_needs.alert.show(nullptr, {.prompt = prompt,
                                 .buttons = helpId ? Alert::OkHelp : Alert::Ok,
                                 .helpId = helpId,
                                 .sound = tone == Tone::Warning,
                                 .exclamation = tone == Tone::Warning});
}

void FileCommands::LoadVocabulary(const QString &path)
{
    load(path, OpenAs::File);
    m_needs.status.ShowStatus(modSBFunc::Ready);
}

void FileCommands::openCopy(const QString &path)
{
    load(path, OpenAs::Copy);
    m_needs.status.ShowStatus(modSBFunc::Ready);
}

void FileCommands::load(const QString &path, OpenAs how)
{
    if (how == OpenAs::File && refuseOpenOne(path))
        return;
    VocabularyFile file(path);
    const VocabularyCodec::Header header = file.readHeader();
    if (header.outcome == Outcome::BadFormat)
        return tell(Tone::Plain, resText(713) + TextLanguage::isolated(path) + resText(714), BadFormatTopic);
    if (header.outcome == Outcome::NewerVersion)
        return tell(Tone::Plain, withTitle(722, path), NewerTopic);
    if (header.outcome == Outcome::Ok && header.olderVersion) {
        tell(Tone::Plain, withTitle(721, path), OlderTopic);
        if (how == OpenAs::File && refuseOpenOne(path)) // handed over once more while the message was on the screen
            return;
    }
    const Outcome outcome = header.outcome == Outcome::Ok ? readInto(file, path, how) : header.outcome;
    if (outcome == Outcome::TooManyRows)
        tell(Tone::Plain, resText(712) + TextLanguage::isolated(path) +
                              resText(14075).arg(TextDigits::numbers().toString(Vocabulary::MostRows)));
    else if (outcome != Outcome::Ok)
        tell(Tone::Plain, resText(712) + TextLanguage::isolated(path));
}

bool FileCommands::refuseOpenOne(const QString &path)
{
    const bool isOpen = m_needs.documents.findByPath(path);
    if (isOpen)
        tell(Tone::Plain, resText(710) + TextLanguage::isolated(path) + resText(711), AlreadyOpenTopic);
    return isOpen;
}

Outcome FileCommands::readInto(const VocabularyFile &file, const QString &path, OpenAs how)
{
    const BusyStatus busy(m_needs.status, 715, path, file.size() * 2);
    VocabularyCodec::DecodeResult result =
        file.read(m_codePage, [this](qint64 done) { m_needs.status.setProgress(done); });
    if (result.outcome != Outcome::Ok)
        return result.outcome;
    frmDoc *document = createFilled(std::move(result.vocabulary), file.stamp());
    if (how == OpenAs::File)
        becomeFile(*document, path, file.stamp());
    else
        document->setCaption(m_needs.documents.nextUntitledCaption());
    document->setDirty(false);
    document->showDocument();
    Q_EMIT opened(document);
    return result.outcome;
}

frmDoc *FileCommands::createFilled(Vocabulary &&vocabulary, const FileStamp &stamp)
{
    frmDoc *document = m_needs.documents.create();
    GridContent::fill(*document->Rutor(), std::move(vocabulary));
    m_needs.status.setProgress(stamp.size * 2);
    return document;
}

void FileCommands::becomeFile(frmDoc &document, const QString &path, const FileStamp &stamp)
{
    document.setCaption(VocabularyFile::title(path));
    document.setDocName(path);
    document.fileStamp = stamp;
    m_needs.recentFiles.AddFile(path);
}

FileCommands::SaveReport FileCommands::SaveVocabulary(frmDoc &document, const QString &path)
{
    SaveReport report;
    const int rows = document.Rutor()->Rows();
    const BusyStatus busy(m_needs.status, 716, path, qint64(rows) * 2);
    const Vocabulary vocabulary = GridContent::read(*document.Rutor());
    m_needs.status.setProgress(rows);
    const VocabularyFile::Watchers watchers{
        [this, rows](qint64 done) { m_needs.status.setProgress(rows + done); },
        [this, &document] { m_needs.copies.secure(document); }, // being killed meanwhile would leave half of each
    };
    if (!VocabularyFile(path).save(vocabulary, m_codePage, watchers, &report.error))
        return report;
    report.unstoredRows = vocabulary.unstoredRows();
    document.setCaption(VocabularyFile::title(path));
    document.setDirty(!report.unstoredRows.empty());
    document.setDocName(path);
    document.fileStamp = FileStamp::of(path);
    Q_EMIT saved(&document);
    return report;
}
