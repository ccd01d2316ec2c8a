#pragma once

class QString;

namespace TitleBar {

/// Whether the desktop draws a question mark into the title bars of dialogs that ask for it. The platform is that of
/// the toolkit; the desktop a list of names separated by colons.
bool hasHelpButton(const QString &platform, const QString &desktop);

} // namespace TitleBar
