#pragma once

#include "document/rules/recovery/RecoveryCopy.h"

#include <memory>
#include <vector>

class FolderLock;

/// The folder in which running programs keep copies of changed documents: each program has a folder of its own in it,
/// which it holds locked for as long as it lives. Copies in a folder that nobody holds were left behind by a crash and
/// may be taken over by one other program.
class RecoveryFolder
{
public:
    /// The folder is created when it is first written to.
    explicit RecoveryFolder(const QString &folder);
    ~RecoveryFolder();
    Q_DISABLE_COPY_MOVE(RecoveryFolder)

    /// A copy left behind.
    struct Orphan
    {
        QString path;
        RecoveryCopy copy;
    };

    /// The copies left behind, newest first. What cannot be read is left alone.
    std::vector<Orphan> orphans() const;

    /// Writes a copy, replacing the one of that path whole. An empty path gets a new one.
    bool write(QString &path, const RecoveryCopy &copy);
    /// Makes a copy left behind this program's own and returns its new path, the old one if it cannot be moved; empty
    /// when another program was quicker.
    QString adopt(const QString &orphanPath);
    /// Deletes a copy; an empty path stands for none. False: it is still there.
    bool remove(const QString &path) const;

private:
    bool takePlace();
    QString newPath();

    QString m_folder;
    QString m_place; ///< this program's own
    std::unique_ptr<FolderLock> m_lock;
    int m_count = 0;
};
