#pragma once

#include <QDialog>

class frmDoc;

/// A dialog about the active document: it takes the document's icon and opens where the user still sees the selected
/// cells.
class ToolDialog : public QDialog
{
    Q_OBJECT

public:
    ToolDialog(frmDoc &document, QWidget *owner);

    void setVisible(bool visible) override;

    /// For dialogs that stay open beside the documents. Works on a document that has become the active one.
    virtual void workOn(frmDoc &document) { setDocument(document); }
    /// Leaves the document, which is about to close or has ceased to be the active one. Until workOn names another one,
    /// the dialog can only be closed.
    virtual void leaveDocument() {}

protected:
    frmDoc &document() const { return *m_document; }
    void setDocument(frmDoc &document) { m_document = &document; }
    /// Where the dialog goes unless it would hide the selection there: the middle of the owner. frame is its size with
    /// the frame.
    virtual QPoint preferredPlace(const QRect &owner, const QSize &frame) const;
    /// Moves the dialog to that place, or beside the selection.
    void place();
    bool hidesSelection() const;

private:
    QRect shownSelection() const;
    QSize frameSize() const;

    frmDoc *m_document;
};
