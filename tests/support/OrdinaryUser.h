#pragma once

/// Permissions mean nothing to an administrator: what must be refused is tried as an ordinary user.
namespace OrdinaryUser {

/// Runs the check in a child process that is "nobody" when this one belongs to the administrator. True when it
/// returned true.
bool run(const std::function<bool()> &check);

} // namespace OrdinaryUser
