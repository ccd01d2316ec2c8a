#pragma once

#include "quiz/rules/AnswerJudge.h"
#include "quiz/rules/QuestionTable.h"

#include <QObject>

#include <functional>
#include <optional>

class clsAppProperties;

/// Runs one quiz without a window: asks, hints, judges, counts and asks again what was answered wrongly. The window
/// passes on what the user does, calls the ticks from its two timers and shows what the signals announce. The signal
/// settled() tells every answer once, when its verdict is final: who remembers answers listens to that one.
class QuizSession : public QObject
{
    Q_OBJECT

public:
    enum class Verdict : qint16 { Undecided = 0, Correct = 1, Wrong = 2 };

    /// Milliseconds for each letter of a Practice answer.
    static constexpr int RevealInterval = 200;
    /// Ticks that the whole answer stays on view; the one after them judges.
    static constexpr int PauseTicks = 3;
    static constexpr int NothingChosen = -1;

    /// The settings are read at each use and written as soon as the user changes one.
    QuizSession(QuizKind kind, clsAppProperties &settings, QObject *parent = nullptr);

    /// The clock that tells how long an answer took, in milliseconds from any start; without one it is the system's.
    void setClock(std::function<qint64()> clock) { m_clock = std::move(clock); }

    /// Builds the questions for the mode of the settings. False: no quiz, because of too few or too many words.
    bool fByggMatriser(const WordSource &words, RandomSource &random, const AskedRows &rows = {});

    QuizKind kind() const { return m_kind; }
    int questionCount() const { return m_table.count(); }
    /// The number of the question on view, 0 before the first.
    int currentQuestion() const { return m_current; }
    const Question &question() const { return m_table.question(m_current); }
    int correctCount() const { return m_correctCount; }
    int errorCount() const { return int(m_errors.size()); }
    /// The answer last judged.
    const QString &givenAnswer() const { return m_givenAnswer; }
    /// What that answer was worth, as far as its text goes; plainly right where nothing was typed.
    const Judgement &judgement() const { return m_judgement; }
    /// The text typed, or spelled out so far in Practice.
    const QString &answerText() const { return m_answerText; }
    /// The round has ended: what is left is to repeat the errors or to close.
    bool done() const { return m_done; }
    bool canRepeat() const { return m_done && errorCount() > 0; }
    bool revealing() const { return m_revealReason != Verdict::Undecided; }

    /// The delay of the automatic answer in seconds, as the user reads and writes it.
    QString autoSeconds() const;
    /// Takes a delay over if it is a number greater than 0.
    void setAutoSeconds(const QString &text);
    bool automatic() const;
    void setAutomatic(bool on);
    bool hintIsError() const;
    void setHintIsError(bool on);
    bool beepOnError() const;
    void setBeepOnError(bool on);

    void setAnswerText(const QString &text) { m_answerText = text; }
    /// Chooses option 0 to 2; it is judged at once when that is automatic.
    void choose(int option);
    /// Judges the answer; in Practice the user knows it. Does nothing once the round has ended, like hint().
    void check();
    /// Shows one more letter; in Practice the user does not know the answer.
    void hint();

    /// Asks the next question, or ends the round.
    void fShowQuestion();
    /// Asks the question on view again, as at the beginning but for what has been typed: the quiz was left and goes on.
    void resume();
    /// Judges the question on view, by the input if the verdict is not decided yet, and goes on to the next.
    Verdict fCheckAnswer(Verdict verdict);
    /// Keeps what stands in its right place and adds one letter of the answer.
    void fGiveHint();
    /// Starts a round with the questions answered wrongly.
    void fRepeatErrors();

    /// A typed answer that was judged wrong can be turned until the next answer, a repeat, or settle().
    bool canTurn() const { return m_open.has_value(); }
    /// The question whose verdict can be turned, or null.
    const Question *openQuestion() const { return m_open ? &m_open->question : nullptr; }
    /// The verdict that can be turned has been: the answer counts as right.
    bool turned() const { return m_open && m_open->right; }
    /// Makes the last verdict right, or wrong again; counters and errors follow.
    void turnVerdict();
    /// The last verdict can no longer be turned. To be called when the quiz is left.
    void settle();

    void revealTick();
    void autoTick();

Q_SIGNALS:
    /// Intervals of the window's two timers, in milliseconds; 0 stops one, any other value starts it anew.
    void revealIntervalChanged(int milliseconds);
    void autoIntervalChanged(int milliseconds);
    void roundStarted();
    void questionShown();
    /// The answer text has been changed by a hint.
    void answerRevealed();
    /// The question still on view has been judged and counted.
    void judged(bool correct);
    void verdictTurned(bool correct);
    /// An answer's verdict is final; told in the order of the answers. The milliseconds are those from when the
    /// question was shown until it was answered.
    void settled(const Question &question, bool right, bool hintUsed, int milliseconds);
    void roundEnded();

private:
    /// An answer that is judged, but not settled.
    struct Answer
    {
        Question question;
        bool right;
        bool hintUsed;
        int milliseconds;
    };

    bool asking() const { return m_current > 0 && !m_done; }
    void startReveal(Verdict reason);
    Verdict judgeOption();
    Verdict judgeText(bool hintUsed);
    void count(const Answer &answer);
    void tell(const Answer &answer);
    void endRound();

    const QuizKind m_kind;
    clsAppProperties &m_settings;
    QuestionTable m_table;
    std::vector<Question> m_errors;
    int m_current = 0;
    int m_correctCount = 0;
    int m_chosenOption = NothingChosen;
    int m_pauseTicks = 0;
    int m_autoInterval; ///< milliseconds
    Verdict m_revealReason = Verdict::Undecided;
    bool m_hintUsed = false;
    bool m_done = false;
    QString m_answerText;
    QString m_givenAnswer;
    AnswerJudge m_judge;
    Judgement m_judgement;
    std::function<qint64()> m_clock;
    qint64 m_shownAt = 0; ///< milliseconds of the clock
    std::optional<Answer> m_open;
};
