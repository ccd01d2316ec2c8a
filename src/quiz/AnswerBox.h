#pragma once

#include <QLineEdit>

/// Where the answer is typed: a box without a border of its own, on a line that lights up while it has the focus. While
/// it holds the prompt it was given, all of that is selected, so that what is typed takes its place.
class AnswerBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit AnswerBox(QWidget *parent = nullptr);

    /// The text that invites to type. It is real text of the box as long as it stands there.
    void setPrompt(const QString &prompt) { m_prompt = prompt; }

protected:
    bool event(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool promptStands() const { return !isModified() && !m_prompt.isEmpty() && text() == m_prompt; }
    void selectPrompt();

    QString m_prompt;
    bool m_releasing = false;
};
