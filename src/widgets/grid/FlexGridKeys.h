#pragma once

#include <Qt>

class QKeyEvent;

/// The numbers under which grid events name keys, modifiers and mouse buttons.
namespace FlexGridKeys {

/// The virtual-key number of a key (13 Enter, 27 Escape, 38 up, 65 A, 112 F1), 0 when it has none.
int virtualKey(const QKeyEvent &event);
/// 1 Shift, 2 Ctrl, 4 Alt.
int shiftBits(Qt::KeyboardModifiers modifiers);
/// 1 left, 2 right, 4 middle; several may be held.
int buttonBits(Qt::MouseButtons buttons);
/// Whether the key types what text() says: a character, Backspace, Enter or Escape, and no shortcut.
bool typesCharacter(const QKeyEvent &event);

} // namespace FlexGridKeys
