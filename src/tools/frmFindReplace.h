#pragma once

#include "document/rules/UndoRecord.h"
#include "tools/ToolDialog.h"
#include "tools/rules/Search.h"

#include <memory>

class AlertBox;
struct ProgramFlags;

namespace Ui {
class frmFindReplace;
}

/// Finds a text in a vocabulary and replaces it, match by match or everywhere. It stays open beside the documents and
/// works on the active one, whose grid shows each match in its cell editor. All replacements made there until it closes
/// are one undo step.
class frmFindReplace : public ToolDialog
{
    Q_OBJECT

public:
    /// What the dialog works with; all of it outlives the dialog.
    struct Needs
    {
        ProgramFlags &flags;
        UndoRecord &undo;
        AlertBox &alert;
        Search &lastSearch; ///< what was searched for last, for who finds on without the dialog
    };

    /// Opens in the replace layout when ReplaceMode is set, else in the find layout. The owner is the main window.
    frmFindReplace(frmDoc &document, const Needs &needs, QWidget *owner);
    ~frmFindReplace() override;

    /// Brings the dialog to the front for another Find or, with replace true, Replace command.
    void showAgain(bool replace);
    /// Shows the next or the previous match, as the dialog stands.
    void findOn(bool backwards);
    /// No undo step is left.
    void leaveDocument() override;
    void workOn(frmDoc &document) override;

    /// Every way of closing the dialog ends here.
    void done(int result) override;

protected:
    /// The lower right corner of the main window, a little above its edge.
    QPoint preferredPlace(const QRect &owner, const QSize &frame) const override;

private:
    enum Mode { Find, FindBack, ReplaceAndFind };

    void setUpControls();
    void nameScopes();
    void connectControls();
    void setLayoutFor(bool replace);
    QSize sizeWithReplace(bool shown);
    void widen();

    void ReadOptions();
    void FindNext(Mode mode);
    void ReplaceAllMatches();
    void replaceMatch();
    void showMatch(const Search::Match &match);
    void endRegion(const QString &message);
    void noteReplacement();
    void leaveUndoStep();
    void restart();

    std::unique_ptr<Ui::frmFindReplace> m_ui;
    Needs m_needs;
    Search m_search;
    QString m_ReplaceWith;
    UndoRecord::Snapshot m_snapshot; ///< every word when the dialog opened
    bool m_ReplaceWasMade = false;
    bool m_hasDocument = true;
    bool m_replaceLayout = false;
};
