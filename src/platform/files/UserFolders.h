#pragma once

#include <QString>

/// The user's own folders after the desktop's base directory rules. Paths are absolute and without a trailing
/// separator; nothing is created.
namespace UserFolders {

/// Settings of the program.
QString config();
/// What the program keeps between runs without being settings or documents.
QString state();
/// Folder for the data of all programs (MIME types, icons, desktop entries).
QString sharedData();

} // namespace UserFolders
