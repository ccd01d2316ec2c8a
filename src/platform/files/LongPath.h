#pragma once

#include <QString>

#include <functional>

namespace LongPath {

/// The name under which a folder lists the entry that name leads to; empty when there is none.
using Lookup = std::function<QString(const QString &folder, const QString &name)>;

/// The file system's own answer. Where letter case does not count (removable and network disks) the listing's spelling
/// is found; a symbolic link, also one that leads nowhere, is an entry like any other.
QString directoryEntry(const QString &folder, const QString &name);

/// The one name of an existing file: an absolute path whose components are spelled as their folders list them, without
/// "." and "..". Symbolic links keep the name the user gave. Empty when path is relative or a component does not exist.
QString ExpandLongPath(const QString &path, const Lookup &lookup = directoryEntry);

} // namespace LongPath
