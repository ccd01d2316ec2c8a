#pragma once

#include <QString>

/// The files that come with the program without being part of its executable.
namespace ProgramFiles {

/// Absolute path of a file: beside the program, where it is built, or in the data folder of its installation. One that
/// stands at neither place is expected beside the program.
QString path(const QString &name);

/// The same for a library that is loaded when it is needed, in the library folder of the installation.
QString module(const QString &name);

} // namespace ProgramFiles
