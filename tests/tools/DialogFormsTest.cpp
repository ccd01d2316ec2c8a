#include "services/FormTexts.h"
#include "support/OpenDocument.h"
#include "support/ScriptedAlertBox.h"
#include "tools/frmColRow.h"
#include "tools/frmFindReplace.h"
#include "tools/frmFont.h"
#include "tools/frmSort.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>

namespace {

/// The letters by which the controls of a window are reached, in the order of the controls.
QString mnemonics(const QWidget &dialog)
{
    QString letters;
    for (const QWidget *control : dialog.findChildren<QWidget *>()) {
        const QKeySequence key = QKeySequence::mnemonic(control->property("text").toString());
        if (control->isVisible() && !key.isEmpty())
            letters += key.toString().back();
    }
    return letters;
}

/// What the user can work on, apart from the parts of which boxes are made.
QList<QWidget *> controls(const QWidget &dialog)
{
    QList<QWidget *> result;
    for (QWidget *control : dialog.findChildren<QWidget *>()) {
        const bool partOfBox = qobject_cast<QComboBox *>(control->parentWidget());
        if (control->focusPolicy() & Qt::TabFocus && !partOfBox && control->objectName().size() > 3)
            result << control;
    }
    return result;
}

void expectUsableByEveryone(QDialog &dialog, int helpContextId, const QString &letters)
{
    SCOPED_TRACE(dialog.objectName().toStdString());
    dialog.show();
    EXPECT_EQ(mnemonics(dialog).toStdString(), letters.toStdString());
    EXPECT_FALSE(dialog.whatsThis().isEmpty());
    EXPECT_EQ(FormTexts::helpContextId(&dialog), helpContextId);
    EXPECT_GT(controls(dialog).size(), 2);
    for (QWidget *control : controls(dialog)) {
        const auto *button = qobject_cast<QAbstractButton *>(control);
        EXPECT_FALSE(control->accessibleName().isEmpty() && !(button && !button->text().isEmpty()))
            << control->objectName().toStdString();
        EXPECT_FALSE(control->whatsThis().isEmpty()) << control->objectName().toStdString();
        EXPECT_EQ(control->property("helpContextId").toInt(), helpContextId) << control->objectName().toStdString();
    }
}

TEST(ToolDialogs, HaveKeysNamesAndHelpForEveryControl)
{
    OpenDocument open;
    ScriptedAlertBox alert;
    frmSort sort(open.document, &open.window);
    expectUsableByEveryone(sort, 1210, "12ADS");
    frmColRow height(open.document, frmColRow::RowHeight, &open.window);
    expectUsableByEveryone(height, 1200, "R");
    frmColRow width(open.document, frmColRow::ColumnWidth, &open.window);
    expectUsableByEveryone(width, 1200, "C");
    frmFont font(open.document, open.settings, alert, &open.window);
    expectUsableByEveryone(font, 1204, "FSOBIU");
    frmFindReplace find(open.document, {open.flags, open.undo, alert}, &open.window);
    expectUsableByEveryone(find, 1160, "FD12MWNRC");
    open.flags.ReplaceMode = true;
    frmFindReplace replace(open.document, {open.flags, open.undo, alert}, &open.window);
    expectUsableByEveryone(replace, 1170, "FED12MWNRAC");
}

} // namespace
