#pragma once

#include "app/WindowArrangement.h"

#include <QMdiArea>

class QMdiSubWindow;
class frmDoc;

/// The part of the main window where documents stand: makes their frames, finds each its place, and goes from one to
/// another.
class DocumentArea : public QMdiArea
{
    Q_OBJECT

public:
    explicit DocumentArea(QWidget *parent = nullptr);

    /// Puts a new document into a frame of its own, which is returned and not yet shown.
    QMdiSubWindow *place(frmDoc &document);

    /// Makes a document's window the active one.
    void activate(frmDoc &document);
    void arrange(WindowArrangement how);

protected:
    /// Where lines begin at the right, windows keep their distance from that edge.
    void resizeEvent(QResizeEvent *event) override;

private:
    void addKeys();
    void goAround(bool forward);
    /// How far the title bar of a window stands from that of the one behind it, in pixels.
    int cascadeStep() const;
    /// The place on the side where lines begin, for one that counts from the left.
    QRect mirrored(const QRect &place) const;
    std::vector<QRect> placesFor(WindowArrangement how, const QList<QMdiSubWindow *> &windows) const;
};
