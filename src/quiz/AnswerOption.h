#pragma once

#include <QRadioButton>

/// One option of Multiple Choice, "1 " to "3 " and a text that is fitted to the button's width; what does not fit
/// stands in the tooltip.
class AnswerOption : public QRadioButton
{
    Q_OBJECT

public:
    explicit AnswerOption(QWidget *parent = nullptr);

    /// Shows a text behind the number, which is the option's key.
    void setFullText(int number, const QString &text);

    /// Whether it shows when it has the focus, in every style.
    void setFocusShown(bool shown);

    /// The same height for every script, so that the window keeps still.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// The whole row takes a click, not only its text.
    bool hitButton(const QPoint &position) const override;
    void initStyleOption(QStyleOptionButton *option) const override;
    void resizeEvent(QResizeEvent *event) override;

private:
    double roomForText() const;
    void fit();

    int m_number = 0;
    QString m_fullText;
    bool m_focusShown = false;
};
