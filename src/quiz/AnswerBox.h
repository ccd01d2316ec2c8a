#pragma once

#include <QLineEdit>

/// Where the answer is typed: a box without a border of its own, on a line that lights up while it has the focus.
class AnswerBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit AnswerBox(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
