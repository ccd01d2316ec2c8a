#pragma once

#include <QString>

#include <optional>

namespace RequestedFile {

/// The path of the vocabulary that a text from outside (command line, second start, dropped file) asks for, in quotes
/// or not. Nothing when it is no vocabulary. A path that does not exist is returned as given, so that the message of
/// the failed load can name it.
std::optional<QString> requestedPath(QString text);

} // namespace RequestedFile
