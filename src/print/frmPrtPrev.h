#pragma once

#include <QWidget>

class modUtskrift;

/// A page of the preview on the screen. It draws its page of the laid out document when it is looked at; the size and
/// the divisor are those of the layout when it was made. It knows nothing of the other pages: what the user does with
/// it goes up as signals.
class frmPrtPrev : public QWidget
{
    Q_OBJECT

public:
    frmPrtPrev(modUtskrift &layout, QWidget *parent);

    /// The page shown, from 0.
    int page() const { return m_page; }
    void setPage(int page);

Q_SIGNALS:
    void zoomInRequested();
    void zoomOutRequested();
    /// A key or the wheel: see PrintPreview for what they do. A key that is not taken goes on to the parent.
    void keyPressed(int key, bool &taken);
    void keyReleased(int key);
    void wheelTurned(int pixels);
    void mouseMoved();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    modUtskrift &m_layout;
    int m_page = 0;
};
