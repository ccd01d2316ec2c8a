#include "document/RecoveryWriter.h"

#include "document/rules/file/VocabularyFile.h"

namespace {

VocabularyDigest wholeDigest(const RecoveryCopy &copy)
{
    return VocabularyDigest::of(copy.vocabulary, copy.vocabulary.filledRows());
}

/// What a file holds; nothing when it cannot be read.
Vocabulary contentOf(const QString &path, const CodePage &codePage)
{
    VocabularyFile file(path);
    const bool isReadable = file.readHeader().outcome == VocabularyCodec::Outcome::Ok;
    return isReadable ? file.read(codePage).vocabulary : Vocabulary();
}

} // namespace

RecoveryWriter::RecoveryWriter(RecoveryFolder &folder, const CodePage &codePage)
    : m_folder(folder)
    , m_codePage(codePage)
{
}

void RecoveryWriter::run(const SharedSlot &slot, std::function<bool(Slot &)> job)
{
    ++slot->m_jobs;
    m_thread.start([slot, job = std::move(job)] {
        slot->m_failed = !job(*slot);
        --slot->m_jobs;
    });
}

void RecoveryWriter::begin(const SharedSlot &slot, RecoveryCopy &&now)
{
    run(slot, [copy = std::move(now)](Slot &own) {
        own.m_stored = wholeDigest(copy);
        if (copy.docName.isEmpty())
            own.m_begun = copy.vocabulary;
        return true;
    });
}

void RecoveryWriter::keep(const SharedSlot &slot, RecoveryCopy &&now)
{
    run(slot, [this, copy = std::move(now)](Slot &own) {
        return wholeDigest(copy) == own.m_stored ? remove(own) : write(own, copy);
    });
}

void RecoveryWriter::secure(const SharedSlot &slot, RecoveryCopy &&now)
{
    run(slot, [this, copy = std::move(now)](Slot &own) { return write(own, copy); });
}

void RecoveryWriter::settle(const SharedSlot &slot, RecoveryCopy &&now)
{
    run(slot, [this, copy = std::move(now)](Slot &own) {
        own.m_stored = VocabularyDigest::of(copy.vocabulary, copy.vocabulary.storedRows());
        return wholeDigest(copy) == own.m_stored ? remove(own) : write(own, copy);
    });
}

void RecoveryWriter::leave(const SharedSlot &slot, RecoveryCopy &&now, bool wanted)
{
    run(slot, [this, copy = std::move(now), wanted](Slot &own) mutable {
        if (!isWorthACopy(own, copy, wanted))
            return remove(own);
        const bool isSaved = VocabularyDigest::of(copy.vocabulary, copy.vocabulary.storedRows()) == own.m_stored;
        copy.cause = isSaved && !copy.docName.isEmpty() ? RecoveryCopy::Cause::NotInFile : RecoveryCopy::Cause::Closed;
        return write(own, copy);
    });
}

bool RecoveryWriter::isWorthACopy(const Slot &slot, const RecoveryCopy &last, bool wanted) const
{
    if (wholeDigest(last) == slot.m_stored)
        return false;
    if (last.docName.isEmpty())
        return last.vocabulary.hasWordsBeyond(slot.m_begun);
    return wanted || last.vocabulary.hasWordsBeyond(contentOf(last.docName, m_codePage));
}

void RecoveryWriter::discard(const SharedSlot &slot)
{
    run(slot, [this](Slot &own) { return remove(own); });
}

void RecoveryWriter::finish()
{
    m_thread.finish();
}

bool RecoveryWriter::write(Slot &slot, const RecoveryCopy &copy)
{
    return m_folder.write(slot.m_path, copy);
}

bool RecoveryWriter::remove(Slot &slot)
{
    if (!m_folder.remove(slot.m_path))
        return false; // it is tried again
    slot.m_path.clear();
    return true;
}
