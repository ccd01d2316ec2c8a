#include "exchange/packages/LibzipArchive.h"

#include <cstring>
#include <sqlite3.h>

namespace {

int compareBytes(void *, int firstSize, const void *first, int secondSize, const void *second)
{
    const int order = std::memcmp(first, second, size_t(std::min(firstSize, secondSize)));
    return order != 0 ? order : firstSize - secondSize;
}

class PackageModule : public PackageLibraries
{
public:
    std::unique_ptr<ZipArchive> openZip(const QByteArray &bytes) const override { return LibzipArchive::of(bytes); }
    void addOrder(void *database, const char *name) const override
    {
        sqlite3_create_collation(static_cast<sqlite3 *>(database), name, SQLITE_UTF8, nullptr, compareBytes);
    }
};

} // namespace

extern "C" Q_DECL_EXPORT const PackageLibraries *glosariaPackageLibraries()
{
    static const PackageModule module;
    return &module;
}
