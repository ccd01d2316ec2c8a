#pragma once

#include <QDateTime>
#include <QString>

/// What tells that a file on the disk is not the one that was read: its size and when it was changed.
struct FileStamp
{
    qint64 size = -1; ///< bytes; -1: there is no such file
    QDateTime changed;

    static FileStamp of(const QString &path);
    bool exists() const { return size >= 0; }
    bool operator==(const FileStamp &) const = default;
};
