#include "exchange/rules/archive/PackageLibraries.h"

#include "platform/files/ProgramFiles.h"

#include <QLibrary>

const PackageLibraries &PackageLibraries::loaded()
{
    QLibrary module(ProgramFiles::module(QStringLiteral("glosaria-packages.so")));
    const auto get = reinterpret_cast<Get>(module.resolve(GetName));
    if (!get)
        throw ReadFailure(ReadError::CannotOpen);
    return *get();
}
