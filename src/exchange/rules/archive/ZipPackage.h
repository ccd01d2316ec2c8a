#pragma once

#include "exchange/rules/archive/PackedStream.h"

class ZipArchive;

/// A zip archive in memory. Nothing of it is written under the names that stand in it.
class ZipPackage
{
public:
    /// bytes must outlive the object. Throws ReadFailure when they are no archive.
    explicit ZipPackage(const QByteArray &bytes);
    ~ZipPackage();
    Q_DISABLE_COPY_MOVE(ZipPackage)

    bool contains(const QString &name) const;
    /// One entry, unpacked as it is read. Throws ReadFailure when there is none of that name or it is locked.
    std::unique_ptr<PackedStream> open(const QString &name, Limits &limits) const;
    /// A small entry as a whole, at most most bytes of it.
    QByteArray start(const QString &name, qsizetype most) const;

private:
    std::unique_ptr<ZipArchive> m_archive;
};
