#pragma once

#include "document/frmDoc.h"

#include <QObject>
#include <QPointer>

#include <vector>

/// The open documents: creates their windows, numbers the untitled ones, and knows which of them is active. A slot is
/// never used twice while the program runs.
class DocumentList : public QObject
{
    Q_OBJECT

public:
    explicit DocumentList(const frmDoc::Shared &shared, QObject *parent = nullptr);

    /// Makes a document window, set up as a new document and not yet shown.
    frmDoc *create();
    /// "Untitled" and the next number; numbers are not used twice.
    QString nextUntitledCaption();

    /// Takes a document out of the list. Its window deletes itself later.
    void remove(frmDoc *document);

    /// Every open document in the order of creation.
    const std::vector<frmDoc *> &open() const { return m_open; }
    /// The document stored under a path, whatever the case of its letters; null when none is.
    frmDoc *findByPath(const QString &path) const;

    /// The document whose window is active; null when there is none.
    frmDoc *active() const { return m_active; }
    /// To be called when another document window becomes active. Null is ignored while any is open: the document area
    /// as a whole may lose the focus without another document taking it.
    void setActive(frmDoc *document);

Q_SIGNALS:
    /// A document will be made and shown.
    void aboutToCreate();
    /// A window was made: the receiver puts it into the document area.
    void created(frmDoc *document);
    void activeChanged(frmDoc *document);
    /// A document left the list; it is not to be used any more.
    void removed(frmDoc *document);

private:
    frmDoc::Shared m_shared;
    std::vector<frmDoc *> m_open;
    frmDoc *m_active = nullptr;
    int m_slots = 0; ///< given out so far; none is used twice
    int m_untitled = 0;
};
