#include "document/RecoveryWriter.h"

namespace {

VocabularyDigest wholeDigest(const RecoveryCopy &copy)
{
    return VocabularyDigest::of(copy.vocabulary, copy.vocabulary.filledRows());
}

} // namespace

RecoveryWriter::RecoveryWriter(RecoveryFolder &folder)
    : m_folder(folder)
{
    m_thread.setMaxThreadCount(1);
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

void RecoveryWriter::leave(const SharedSlot &slot, RecoveryCopy &&now)
{
    run(slot, [this, copy = std::move(now)](Slot &own) {
        return wholeDigest(copy).words == own.m_stored.words ? remove(own) : write(own, copy);
    });
}

void RecoveryWriter::discard(const SharedSlot &slot)
{
    run(slot, [this](Slot &own) { return remove(own); });
}

void RecoveryWriter::finish()
{
    m_thread.waitForDone();
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
