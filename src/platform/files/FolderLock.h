#pragma once

#include <QString>

/// A lock on a folder, by which copies of the program keep out of each other's way. It leaves nothing behind: it ends
/// with the object, and with the process at the latest.
class FolderLock
{
public:
    /// Takes the lock, waiting up to so many milliseconds for a copy that has it.
    FolderLock(const QString &folder, int wait);
    ~FolderLock();
    Q_DISABLE_COPY_MOVE(FolderLock)

    /// False while another copy has it. Where the file system has no such locks, or the folder cannot be opened, it
    /// counts as held.
    bool isHeld() const { return m_held; }

private:
    bool tryLock();

    int m_folder;
    bool m_held = false;
};
