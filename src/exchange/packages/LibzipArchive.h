#pragma once

#include "exchange/rules/archive/PackageLibraries.h"

struct zip;

/// An archive in memory, read by libzip. Nothing of it is written under the names that stand in it.
class LibzipArchive : public ZipArchive
{
public:
    /// Null when the bytes are no archive. They must outlive it.
    static std::unique_ptr<ZipArchive> of(const QByteArray &bytes);

    explicit LibzipArchive(zip *archive)
        : m_archive(archive)
    {
    }
    ~LibzipArchive() override;
    Q_DISABLE_COPY_MOVE(LibzipArchive)

    bool contains(const QByteArray &name) const override;
    PackedStream::Source open(const QByteArray &name, bool &locked) const override;

private:
    zip *m_archive;
};
