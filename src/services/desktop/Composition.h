#pragma once

/// What the user is composing with an input method.
namespace Composition {

/// Has the input method give the text to what has the focus.
void finish();

} // namespace Composition
