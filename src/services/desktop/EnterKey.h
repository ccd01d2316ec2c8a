#pragma once

class QDialog;

/// What Enter does on the controls of a dialog.
namespace EnterKey {

/// Lets Enter on the dialog's option buttons, check boxes and drop-down lists press its default button on every
/// desktop; some would have it choose the option or open the list. Filters that are installed on these controls later
/// go first.
void leaveToDialog(QDialog &dialog);

} // namespace EnterKey
