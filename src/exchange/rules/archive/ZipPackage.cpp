#include "exchange/rules/archive/ZipPackage.h"

#include "exchange/rules/archive/PackageLibraries.h"

ZipPackage::ZipPackage(const QByteArray &bytes)
    : m_archive(PackageLibraries::loaded().openZip(bytes))
{
    if (!m_archive)
        throw ReadFailure(ReadError::Damaged);
}

ZipPackage::~ZipPackage() = default;

bool ZipPackage::contains(const QString &name) const
{
    return m_archive->contains(name.toUtf8());
}

std::unique_ptr<PackedStream> ZipPackage::open(const QString &name, Limits &limits) const
{
    bool locked = false;
    PackedStream::Source source = m_archive->open(name.toUtf8(), locked);
    if (!source)
        throw ReadFailure(locked ? ReadError::Locked : ReadError::Damaged);
    return std::make_unique<PackedStream>(std::move(source), limits);
}

QByteArray ZipPackage::start(const QString &name, qsizetype most) const
{
    Limits limits(most);
    return contains(name) ? open(name, limits)->read(most) : QByteArray();
}
