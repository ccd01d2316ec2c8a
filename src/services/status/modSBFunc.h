#pragma once

#include "services/rules/ProgramFlags.h"

#include <QWidget>

#include <array>

class QProgressBar;
class QSizeGrip;
class StatusPanel;

/// The status bar: four panels in one row along the bottom of the main window. Panel 0 carries messages and help texts,
/// panel 1 the cell reference (and the progress bar of loading and saving), panel 2 the quiz mode; panel 3 is the rest
/// and holds the size grip.
class modSBFunc : public QWidget
{
    Q_OBJECT

public:
    /// String ids of what panel 0 shows: while a cell is edited, while a dialog is open, and when there is nothing to
    /// tell.
    enum StatusText { Edit = 503, DialogOpen = 504, Ready = 506 };

    enum Style { SBT_SUNKEN = 0, SBT_NOBORDERS = 256, SBT_POPOUT = 512 };

    /// While one of the flags says that the find/replace dialog is open, status texts by id are held back.
    modSBFunc(const ProgramFlags &flags, QWidget *parent = nullptr);

    /// Sets the panel edges for a bar of this width in pixels (they stay when the bar is resized later) and the initial
    /// texts. While the text of panel 0 is too long for it, panel 1 gives way as far as panel 2 has room.
    void createPanels(int barWidth);

    /// Shows a text in a panel. Only panels 0 to 2 in the default style are taken as they are; every other request goes
    /// to panel 0 in the default style, so that help texts meant for other places land there.
    void SBSetText(int panel, int style, const QString &text);

    /// Shows a string of the table in panel 0, unless it is the one shown last. Id 0 forgets which was shown last and
    /// leaves the text: whoever writes panel 0 by SBSetText calls it first.
    void ShowStatus(int id);
    /// Whether texts by id are held back now.
    bool isHeldBack() const { return m_flags.searching(); }

    /// Shows a text of its own in panel 0, which the next ShowStatus replaces in any case.
    void showText(const QString &text);

    /// The text of a panel, 0 to 3.
    QString text(int panel) const;
    /// The rectangle of a panel in the bar's coordinates.
    QRect panelRect(int panel) const;

    /// Lays a progress bar over panel 1. Positions run from 0 to maximum; a maximum above 32,767 leaves the range at 0
    /// to 100. A second call replaces the first bar.
    void createProgress(qint64 maximum);
    void setProgress(qint64 position);
    void destroyProgress();

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void placePanels();
    QRect mirrored(const QRect &place) const;
    int roomForMessage() const;

    const ProgramFlags &m_flags;
    std::array<StatusPanel *, 4> m_panels{};
    std::array<int, 3> m_rightEdges{300, 480, 480};
    int m_shownId = 0;
    QProgressBar *m_progress = nullptr;
    QSizeGrip *m_grip;
};
