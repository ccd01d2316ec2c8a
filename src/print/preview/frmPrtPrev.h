#pragma once

#include <QWidget>

#include <memory>

class PageLayout;

/// A page of the preview on the screen, drawn from its layout when it is looked at. It knows nothing of the other
/// pages: what the user does with it goes up as signals.
class frmPrtPrev : public QWidget
{
    Q_OBJECT

public:
    frmPrtPrev(std::shared_ptr<const PageLayout> layout, QWidget *parent);
    ~frmPrtPrev() override;

    /// The page shown, from 0.
    int page() const { return m_page; }
    void setPage(int page);
    int pageCount() const;

Q_SIGNALS:
    void zoomInRequested();
    void zoomOutRequested();
    /// A key or the wheel: see PrintPreview for what they do. Other keys go on to the parent.
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
    std::shared_ptr<const PageLayout> m_layout;
    int m_page = 0;
};
