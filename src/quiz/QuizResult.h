#pragma once

#include <QFrame>

#include <array>
#include <memory>

class QLabel;
class QuizSession;

namespace Ui {
class QuizResult;
}

/// The panel below a question: what was asked before, the verdict on the answer, what was wrong with it, and the
/// counters of the round. What stands in it keeps its room while it is hidden, so that the window keeps still.
class QuizResult : public QFrame
{
    Q_OBJECT

public:
    explicit QuizResult(QWidget *parent = nullptr);
    ~QuizResult() override;

    /// Gives the labels their looks; after their texts have been loaded.
    void dress();
    /// The family and the size of the words, the size as a multiple of the window's type.
    void setWordType(const QString &family, double size);

    /// Takes the last verdict and the counters of a round off the panel.
    void clear();
    /// Shows the verdict on the answer that the session has just judged; spoken is what a screen reader says of it.
    void showVerdict(const QuizSession &session, bool correct, const QString &spoken);
    /// The verdict on view has been turned.
    void showTurned(bool correct, const QString &spoken);
    void showCounters(const QuizSession &session);

private:
    void showAnswer(const QuizSession &session, bool correct);
    void showTypedAnswer(const QuizSession &session, bool correct);
    void setResultVisible(bool previous, bool exact);

    std::unique_ptr<Ui::QuizResult> m_ui;
    std::array<QLabel *, 4> m_lblResult;
    std::array<QLabel *, 4> m_lblResultTitel;
};
