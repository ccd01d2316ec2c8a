#pragma once

#include <QString>

/// Where the copies of the program that belong to one user and one display meet.
namespace InstancePlace {

/// Absolute path for a local socket, at most LongestPath characters in the file system's encoding, in a folder that
/// only the user can enter (created if missing). Empty when no such folder can be had.
QString socketPath();

constexpr int LongestPath = 100;

} // namespace InstancePlace
