#pragma once

#include <QDialog>
#include <QVersionNumber>

#include <array>
#include <memory>

class QToolButton;

namespace Ui {
class frmSplash;
}

/// The small window with the product picture: the splash while the program starts, and the About box with its links.
/// Set LoadStatus, call Form_Load, then show it.
class frmSplash : public QDialog
{
    Q_OBJECT

public:
    enum Status { StartUp = 1, About = 2 };

    explicit frmSplash(const QVersionNumber &version, QWidget *parent = nullptr);
    ~frmSplash() override;

    /// One of Status; with any other value the window stays as it was designed.
    qint16 LoadStatus() const { return m_loadStatus; }
    void setLoadStatus(qint16 status) { m_loadStatus = status; }

    void Form_Load();

Q_SIGNALS:
    /// The pointer is over a link: its target is to be shown in the status bar.
    void linkHovered(const QString &target);
    /// The pointer has left the links: the status bar is to show the text with this id.
    void statusRequested(int textId);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void loadSplash();
    void loadAbout();
    void drawLink(int index);
    void imgLink_Click(int index);
    void lblCopyright_MouseDown();
    void lblCopyright_MouseUp();

    std::unique_ptr<Ui::frmSplash> m_ui;
    std::array<QToolButton *, 2> m_imgLink;
    QVersionNumber m_version;
    qint16 m_loadStatus = 0;
};
