#pragma once

#include <QObject>

class QApplication;
class QDialog;
class QRect;

/// Keeps dialogs usable on screens that are too small for them: what does not fit is scrolled, the row of buttons stays
/// in sight.
class ScreenFit : public QObject
{
    Q_OBJECT

public:
    explicit ScreenFit(QApplication &application);

    /// The part of its screen that a window may take, its frame left out; in pixels of the screen.
    static QRect room(const QWidget &window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static void fit(QDialog &dialog);
};
