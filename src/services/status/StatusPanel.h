#pragma once

#include <QFrame>

/// One panel of the status bar: a text on one line, cut with an ellipsis where it does not fit; then the whole text is
/// the tooltip.
class StatusPanel : public QFrame
{
    Q_OBJECT

public:
    explicit StatusPanel(QWidget *parent);

    QString text() const { return m_text; }
    void setText(const QString &text);
    /// The width in pixels at which the whole text shows.
    int wholeWidth() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fit();

    QString m_text;
    QString m_fitted;
};
