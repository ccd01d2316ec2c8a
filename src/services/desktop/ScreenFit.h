#pragma once

#include <QList>
#include <QObject>

class QApplication;
class QDialog;
class QRect;

/// Keeps dialogs usable on screens that are too small for them: they are made narrower where they can, and what still
/// does not fit is scrolled, while the row of buttons stays in sight. When a screen is taken away it brings the windows
/// back that the desktop leaves there, or at the edge.
class ScreenFit : public QObject
{
    Q_OBJECT

public:
    explicit ScreenFit(QApplication &application);

    /// The part of its screen that a window may take, its frame left out; in pixels of the screen.
    static QRect room(const QWidget &window);

    /// The frame of a window, moved into the screen on which most of it is, or else into the first, and made smaller
    /// where it must be. One that is wholly to be seen stays.
    static QRect inView(const QRect &frame, const QList<QRect> &screens);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static void fit(QDialog &dialog);
    static void bringBackAll();
};
