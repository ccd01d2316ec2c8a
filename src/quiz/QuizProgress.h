#pragma once

#include <QWidget>

/// A thin bar along the top of the quiz: how much of the round is answered, and how much of that correctly.
class QuizProgress : public QWidget
{
    Q_OBJECT

public:
    explicit QuizProgress(QWidget *parent = nullptr);

    /// Numbers of questions; total is above 0.
    void setCounts(int total, int correct, int wrong);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_total = 1;
    int m_correct = 0;
    int m_wrong = 0;
};
