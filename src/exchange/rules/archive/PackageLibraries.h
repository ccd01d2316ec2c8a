#pragma once

#include "exchange/rules/archive/PackedStream.h"

/// An open zip archive.
class ZipArchive
{
public:
    virtual ~ZipArchive() = default;

    virtual bool contains(const QByteArray &name) const = 0;
    /// What unpacks an entry, empty where there is none of that name or it cannot be read: it may be locked.
    virtual PackedStream::Source open(const QByteArray &name, bool &locked) const = 0;
};

/// What the libraries do that only packages of other programs need. These bring more libraries along, so they stand in
/// a module of their own, loaded with the first package: no start has to wait for them.
class PackageLibraries
{
public:
    /// The function by which the module hands out its object, which lives as long as the process.
    using Get = const PackageLibraries *(*)();
    static constexpr char GetName[] = "glosariaPackageLibraries";

    /// Throws ReadFailure where the module cannot be loaded.
    static const PackageLibraries &loaded();

    virtual ~PackageLibraries() = default;

    /// Null when the bytes are no archive. They must outlive it.
    virtual std::unique_ptr<ZipArchive> openZip(const QByteArray &bytes) const = 0;
    /// Gives an open SQLite database an order of texts, by their bytes, under a name that its tables ask for.
    virtual void addOrder(void *database, const char *name) const = 0;
};
