#include "document/RecoveryKeeper.h"

#include "document/DocumentList.h"
#include "document/FileCommands.h"
#include "document/GridContent.h"
#include "document/ctlGrid.h"
#include "document/rules/file/VocabularyCodec.h"
#include "platform/files/RegularFile.h"

namespace {

RecoveryCopy copyOf(const frmDoc &document)
{
    const ctlGrid &grid = *document.Rutor();
    RecoveryCopy copy{document.Caption(),           document.DocName(),      document.fileStamp,
                      QDateTime::currentDateTime(), GridContent::read(grid), {}};
    if (grid.EditMode()) {
        auto &column = grid.Col() == 1 ? copy.vocabulary.first : copy.vocabulary.second;
        column[size_t(grid.Row())] = grid.EditText();
    }
    return copy;
}

} // namespace

RecoveryKeeper::RecoveryKeeper(const CodePage &codePage, const QString &folder)
    : m_codePage(codePage)
    , m_folder(folder)
    , m_writer(m_folder, codePage)
{
    connect(&m_timer, &QTimer::timeout, this, &RecoveryKeeper::lookForChanges);
    m_timer.start(Interval);
}

void RecoveryKeeper::follow(DocumentList &documents, FileCommands &files)
{
    m_documents = &documents;
    connect(&files, &FileCommands::opened, this, &RecoveryKeeper::watch);
    connect(&files, &FileCommands::saved, this, &RecoveryKeeper::settle);
    connect(&files, &FileCommands::givenUp, this, &RecoveryKeeper::giveUp);
    connect(&documents, &DocumentList::removed, this, &RecoveryKeeper::release);
}

RecoveryKeeper::State RecoveryKeeper::stateOf(const frmDoc &document)
{
    const ctlGrid &grid = *document.Rutor();
    State state{grid.revision(), grid.Font(), grid.ForeColor(), {}};
    if (grid.EditMode() && grid.EditText() != grid.Text())
        state.edit = grid.EditText();
    return state;
}

void RecoveryKeeper::watch(frmDoc *document)
{
    const Kept kept{stateOf(*document), std::make_shared<RecoveryWriter::Slot>()};
    m_writer.begin(kept.slot, copyOf(*document));
    m_kept.insert(document, kept);
}

void RecoveryKeeper::lookForChanges()
{
    bool failed = false;
    for (auto place = m_kept.begin(); place != m_kept.end(); ++place) {
        // A disk that is slower than the changes come must not get them all one by one.
        if (place->slot->isBusy())
            continue;
        failed = failed || place->slot->failed();
        keep(*place.key(), *place);
    }
    if (failed)
        Q_EMIT cannotKeep();
}

void RecoveryKeeper::flush()
{
    for (auto place = m_kept.begin(); place != m_kept.end(); ++place)
        keep(*place.key(), *place);
    m_writer.finish();
}

void RecoveryKeeper::keep(frmDoc &document, Kept &kept)
{
    const State now = stateOf(document);
    if (now == kept.seen && !kept.slot->failed())
        return;
    kept.seen = now;
    m_writer.keep(kept.slot, copyOf(document));
}

void RecoveryKeeper::settle(frmDoc *document)
{
    const auto place = m_kept.find(document);
    if (place == m_kept.end())
        return;
    place->seen = stateOf(*document);
    m_writer.settle(place->slot, copyOf(*document));
}

bool RecoveryKeeper::secure(frmDoc &document)
{
    const auto place = m_kept.find(&document);
    if (place == m_kept.end())
        return false;
    place->seen = stateOf(document);
    m_writer.secure(place->slot, copyOf(document));
    m_writer.finish();
    return !place->slot->failed();
}

void RecoveryKeeper::giveUp(frmDoc *document)
{
    if (const Kept kept = m_kept.take(document); kept.slot)
        m_writer.discard(kept.slot);
}

void RecoveryKeeper::release(frmDoc *document)
{
    const auto place = m_kept.find(document);
    if (place == m_kept.end())
        return;
    m_writer.leave(place->slot, copyOf(*document), document->Dirty());
    m_kept.erase(place);
}

std::vector<RecoveryFolder::Orphan> RecoveryKeeper::orphans()
{
    m_writer.finish();
    std::vector<RecoveryFolder::Orphan> found = m_folder.orphans();
    std::erase_if(found, [this](const RecoveryFolder::Orphan &orphan) {
        const bool needless = holdsOnlyItsFile(orphan.copy);
        if (needless)
            m_folder.remove(orphan.path);
        return needless;
    });
    return found;
}

/// As when the program was killed between saving and removing the copy.
bool RecoveryKeeper::holdsOnlyItsFile(const RecoveryCopy &copy) const
{
    const Vocabulary &words = copy.vocabulary;
    QFile file;
    if (copy.docName.isEmpty() || words.filledRows() > words.storedRows() || !RegularFile::open(file, copy.docName))
        return false;
    const QByteArray bytes = VocabularyCodec::encode(words, m_codePage);
    return file.size() == bytes.size() && file.readAll() == bytes;
}

void RecoveryKeeper::recover(const RecoveryFolder::Orphan &orphan)
{
    m_writer.finish();
    const QString path = m_folder.adopt(orphan.path);
    if (path.isEmpty())
        return;
    closeUnchanged(orphan.copy.docName);
    frmDoc *document = m_documents->create();
    GridContent::fillAll(*document->Rutor(), Vocabulary(orphan.copy.vocabulary));
    document->setCaption(orphan.copy.caption);
    document->setDocName(orphan.copy.docName);
    document->fileStamp = orphan.copy.fileStamp;
    document->setDirty(true);
    m_kept.insert(document, {stateOf(*document), std::make_shared<RecoveryWriter::Slot>(path)});
    document->showDocument();
}

/// A file that was opened before its copy is recovered has no second window.
void RecoveryKeeper::closeUnchanged(const QString &path)
{
    frmDoc *open = path.isEmpty() ? nullptr : m_documents->findByPath(path);
    if (open && !open->Dirty() && !open->Rutor()->EditMode())
        open->frame()->close();
}

void RecoveryKeeper::discard(const RecoveryFolder::Orphan &orphan)
{
    m_writer.finish();
    m_folder.remove(orphan.path);
}
