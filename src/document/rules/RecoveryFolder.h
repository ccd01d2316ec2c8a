#pragma once

#include "document/rules/RecoveryCopy.h"

#include <QLockFile>

#include <memory>

/// The folder in which running programs keep copies of changed documents. Each program holds a lock for as long as it
/// lives; copies whose lock nobody holds were left behind by a crash and may be taken over by one other program.
class RecoveryFolder
{
public:
    /// The folder is created when it is first written to.
    explicit RecoveryFolder(const QString &folder);

    /// A copy left behind.
    struct Orphan
    {
        QString path;
        RecoveryCopy copy;
    };

    /// The copies left behind, newest first. What cannot be read is left alone.
    std::vector<Orphan> orphans() const;

    /// A path for a new copy of this program's; empty when the folder cannot be had.
    QString newPath();
    /// Writes a copy, replacing the one of that path whole.
    bool write(const QString &path, const RecoveryCopy &copy) const;
    /// Makes a copy left behind this program's own and returns its new path; empty when another program was quicker.
    QString adopt(const QString &orphanPath);
    /// Deletes a copy; an empty path stands for none.
    void remove(const QString &path) const;

private:
    bool takePlace();
    QString lockPath(const QString &session) const;

    QString m_folder;
    QString m_session;
    std::unique_ptr<QLockFile> m_lock;
    int m_count = 0;
};
