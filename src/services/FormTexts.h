#pragma once

class QString;
class QWidget;

/// Loads what the controls of a form say from the string table. A form names the ids in dynamic properties of its
/// controls: `textId` (caption or window title), `whatsThisId`, `toolTipId`, `accessibleTextId` (for a control without
/// a caption of its own) and `helpContextId` (read by the help object).
namespace FormTexts {

/// Fills in the window and every control below it. A control without a caption takes its accessible name from
/// `accessibleTextId`, else from the label whose buddy it is.
void apply(QWidget *form);

/// Gives one control the caption with that id; group boxes, labels, buttons and windows have one.
void setCaption(QWidget *control, int textId);
/// The same for a text that is not in the table, for example one with a language's name in it.
void setCaption(QWidget *control, const QString &text);

/// Gives one control its what's-this text.
void setWhatsThis(QWidget *control, int whatsThisId);

/// Gives a window and every control below it that has one already the help topic with that id.
void setHelpContextId(QWidget *form, int helpContextId);

/// The help topic of a control, or of the nearest of its parents that has one; 0 when there is none.
int helpContextId(const QWidget *control);

/// A text without its mnemonic mark, as a screen reader says it: "&Find" gives "Find", "&&" a "&".
QString withoutMnemonic(const QString &caption);

/// A text that must show as it is in a place that takes mnemonics: every "&" doubled.
QString escapeMnemonic(const QString &text);

/// A tooltip that shows the text as it stands, also when it looks like markup.
QString plainToolTip(const QString &text);

} // namespace FormTexts
