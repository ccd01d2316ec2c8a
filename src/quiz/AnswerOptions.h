#pragma once

#include "quiz/rules/Question.h"

#include <QButtonGroup>

#include <array>

class AnswerOption;

/// The three options of Multiple Choice and the keys that choose among them: the digits 1 to 3, the arrow keys, and
/// Enter on an option where choosing is checking. An option shows the focus once the user has gone to it.
class AnswerOptions : public QObject
{
    Q_OBJECT

public:
    static constexpr int Count = 3;

    AnswerOptions(const std::array<AnswerOption *, Count> &options, QObject *parent);

    /// Offers the options of a question, none of them chosen.
    void offer(const Question &question);
    void setVisible(bool visible);
    AnswerOption *option(int index) const { return m_options[size_t(index)]; }
    /// While choosing an option checks it at once, the arrow keys only move between the options.
    void setChoosingChecks(bool checks) { m_choosingChecks = checks; }
    /// Chooses with a digit key; false for any other key.
    bool chooseByDigit(int key);

Q_SIGNALS:
    /// The user has chosen an option, 0 to 2.
    void chosen(int index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool optionKey(int index, int key);
    void setReached(bool reached);
    void moveTo(int index);
    void choose(int index);

    std::array<AnswerOption *, Count> m_options;
    QButtonGroup m_group;
    bool m_choosingChecks = false;
    bool m_reached = false; ///< the user has gone to an option of this question
};
