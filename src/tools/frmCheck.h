#pragma once

#include "tools/FindingList.h"
#include "tools/ToolDialog.h"

#include <memory>

class EditCommands;
class UndoRecord;

namespace Ui {
class frmCheck;
}

/// Lists what looks wrong in a vocabulary and selects in the grid what the list stands on. It stays open beside the
/// documents and works on the active one; what was changed there meanwhile shows when the dialog is taken up again.
class frmCheck : public ToolDialog
{
    Q_OBJECT

public:
    /// What the dialog changes the document with; all of it outlives the dialog.
    struct Needs
    {
        EditCommands &edit;
        UndoRecord &undo;
    };

    /// The owner is the main window.
    frmCheck(frmDoc &document, const Needs &needs, QWidget *owner);
    ~frmCheck() override;

    void workOn(frmDoc &document) override;
    void leaveDocument() override;

    void done(int result) override;

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    QPoint preferredPlace(const QRect &owner, const QSize &frame) const override;

private:
    void connectControls();
    /// Looks again, and goes to a line.
    void refresh(int line);
    /// Looks again at what may have changed outside the dialog. The current line stays only if it is still there,
    /// which is returned: nothing else may take its place under the user's pointer.
    bool lookAgain();
    void fillList();
    void goTo(int line);
    void showCurrent();
    void enableButtons();
    int current() const;

    void removeRow();
    void trim();
    void trimAll();

    std::unique_ptr<Ui::frmCheck> m_ui;
    Needs m_needs;
    FindingList m_findings;
    bool m_hasDocument = true;
};
