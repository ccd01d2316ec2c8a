#pragma once

#include <QPushButton>
#include <QStaticText>
#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QPainter;
class QVBoxLayout;

/// A line of text that does something when it is clicked, or when Enter or the space bar is pressed on it. A screen
/// reader is told of a link.
class LinkButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LinkButton(const QString &text, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void layOut() const;
    void drawText(QPainter &painter) const;

    mutable QStaticText m_shape; ///< of the text: its letters are placed once, for its size and for the screen
    mutable QSize m_size;        ///< invalid until it is asked for; layouts ask often
};

/// Links one below the other under a heading. The Tab key stops at the list once, the arrow keys, Home and End go
/// through its links.
class LinkList : public QWidget
{
    Q_OBJECT

public:
    struct Link
    {
        QString text;
        QString toolTip; ///< the whole text where only a part is shown; empty: none
        int whatsThisId;
        std::function<void()> run;
    };

    explicit LinkList(const QString &heading, QWidget *parent = nullptr);

    /// Replaces the links; without any the list is hidden.
    void setLinks(const std::vector<Link> &links);
    const std::vector<LinkButton *> &links() const { return m_links; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void add(const Link &link);
    /// The link at which the Tab key stops.
    void setStop(size_t index);
    bool goFrom(size_t index, int key);

    QString m_heading;
    QVBoxLayout *m_layout;
    std::vector<LinkButton *> m_links;
};
