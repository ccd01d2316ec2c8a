#pragma once

#include <QFile>

/// What the user names as a file can be anything. A pipe or a device may keep whoever opens or reads it waiting.
namespace RegularFile {

/// Opens a regular file for reading, without waiting; file has no name yet. False: it is another kind, or cannot be
/// read.
bool open(QFile &file, const QString &path);

} // namespace RegularFile
