#pragma once

/// The program that the clipboard's text belongs to and comes from.
namespace ClipboardOwner {

/// False when there is one that hangs: it is given a second. The toolkit would wait for it several times as long, with
/// the window standing still.
bool answers();

} // namespace ClipboardOwner
