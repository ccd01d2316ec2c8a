#pragma once

#include <QWidget>

#include <array>

class QPushButton;
class QTableWidget;
struct MissedAnswer;

/// The list of the answers that were wrong, for the end of a quiz: the words asked, the answers given and the right
/// ones. It can be copied, and what it holds can be asked to be kept.
class MissedList : public QWidget
{
    Q_OBJECT

public:
    /// Tab leads from the widget before it to the list.
    explicit MissedList(QWidget &before, QWidget *parent = nullptr);

    /// Without the answers given when withGiven is false, as in Practice, where there are none.
    void setAnswers(const std::vector<MissedAnswer> &answers, bool withGiven);

    QSize sizeHint() const override;

Q_SIGNALS:
    void keepRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void shareWidth();
    void copy();

    QWidget &m_before;
    QTableWidget *m_table;
    std::array<QPushButton *, 2> m_buttons;
};
