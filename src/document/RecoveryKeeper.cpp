#include "document/RecoveryKeeper.h"

#include "document/DocumentList.h"
#include "document/FileCommands.h"
#include "document/GridContent.h"
#include "document/ctlGrid.h"

namespace {

RecoveryCopy copyOf(const frmDoc &document)
{
    const ctlGrid &grid = *document.Rutor();
    RecoveryCopy copy{document.Caption(), document.DocName(), document.fileStamp, QDateTime::currentDateTime(),
                      GridContent::read(grid)};
    if (grid.EditMode()) {
        auto &column = grid.Col() == 1 ? copy.vocabulary.first : copy.vocabulary.second;
        column[size_t(grid.Row())] = grid.EditText();
    }
    return copy;
}

} // namespace

RecoveryKeeper::RecoveryKeeper(DocumentList &documents, FileCommands &files, const QString &folder, QObject *parent)
    : QObject(parent)
    , m_documents(documents)
    , m_folder(folder)
{
    connect(&files, &FileCommands::opened, this, &RecoveryKeeper::watch);
    connect(&files, &FileCommands::saved, this, &RecoveryKeeper::settle);
    connect(&files, &FileCommands::givenUp, this, &RecoveryKeeper::giveUp);
    connect(&documents, &DocumentList::removed, this, &RecoveryKeeper::release);
    connect(&m_timer, &QTimer::timeout, this, &RecoveryKeeper::flush);
    m_timer.start(Interval);
}

RecoveryKeeper::State RecoveryKeeper::stateOf(const frmDoc &document)
{
    const ctlGrid &grid = *document.Rutor();
    const QString edit = grid.EditMode() && grid.EditText() != grid.Text() ? grid.EditText() : QString();
    return {grid.revision(), edit};
}

void RecoveryKeeper::watch(frmDoc *document)
{
    const State now = stateOf(*document);
    m_kept.insert(document, {now, now, {}});
}

void RecoveryKeeper::flush()
{
    for (auto place = m_kept.begin(); place != m_kept.end(); ++place)
        keep(*place.key(), place.value());
}

void RecoveryKeeper::keep(frmDoc &document, Kept &kept)
{
    const State now = stateOf(document);
    const bool changed = now != kept.unchanged || document.Dirty();
    const bool upToDate = !kept.path.isEmpty() && now == kept.copied;
    if (!changed || upToDate)
        return;
    if (kept.path.isEmpty())
        kept.path = m_folder.newPath();
    if (!kept.path.isEmpty() && m_folder.write(kept.path, copyOf(document)))
        kept.copied = now;
}

void RecoveryKeeper::settle(frmDoc *document)
{
    const auto place = m_kept.find(document);
    if (place == m_kept.end())
        return;
    m_folder.remove(place->path);
    const State now = stateOf(*document);
    *place = {now, now, {}};
}

void RecoveryKeeper::giveUp(frmDoc *document)
{
    m_folder.remove(m_kept.take(document).path);
}

void RecoveryKeeper::release(frmDoc *document)
{
    const auto place = m_kept.find(document);
    if (place == m_kept.end())
        return;
    keep(*document, *place);
    m_kept.erase(place);
}

void RecoveryKeeper::recover(const RecoveryFolder::Orphan &orphan)
{
    const QString path = m_folder.adopt(orphan.path);
    if (path.isEmpty())
        return;
    frmDoc *document = m_documents.create();
    GridContent::fillAll(*document->Rutor(), Vocabulary(orphan.copy.vocabulary));
    document->setCaption(orphan.copy.caption);
    document->setDocName(orphan.copy.docName);
    document->fileStamp = orphan.copy.fileStamp;
    document->setDirty(true);
    const State now = stateOf(*document);
    m_kept.insert(document, {{}, now, path});
    document->showDocument();
}
