#pragma once

#include <QString>

/// What a Wayland desktop gives a program that the user starts, so that a window may come to the front: without one,
/// none may but by the user's own hand.
namespace ActivationToken {

/// The token that this copy was started with; empty without one, and on other desktops.
QString ofThisStart();

/// Lets the next window that the program activates come to the front by this token, if there is one.
void use(const QString &token);

} // namespace ActivationToken
