#pragma once

#include "quiz/AnswerOptions.h"
#include "quiz/QuizPlace.h"
#include "quiz/rules/LeftQuiz.h"
#include "widgets/clsTimer.h"

#include <QDialog>
#include <QPointer>

#include <functional>
#include <memory>

class Announcer;
class clsAppProperties;
class LetterRow;
class MissedList;
class QuizReader;
class SoundPlayer;
class Speaker;

namespace Ui {
class frmOva;
}

/// The window of all three kinds of quiz. It shows a QuizSession and passes on what the user does; while it is open the
/// document window it asks about is minimised. Set QuizType, call Form_Load, and show it only when Tag is "1".
class frmOva : public QDialog
{
    Q_OBJECT

public:
    frmOva(clsAppProperties &settings, RandomSource &random, SoundPlayer &errorSound, QWidget *parent = nullptr);
    ~frmOva() override;

    /// 0 Practice, 1 Multiple Choice, 2 Question and Answer; set before Form_Load.
    qint16 QuizType() const { return m_quizType; }
    void setQuizType(qint16 type) { m_quizType = type; }

    /// Which words are asked; set before Form_Load, else all are.
    void setAskedRows(const AskedRows &rows) { m_askedRows = rows; }

    /// The family of the vocabulary's words, the window's own if it is empty; set before Form_Load.
    void setWordFamily(const QString &family) { m_wordFamily = family; }

    /// Makes what the summary says below the score; an empty text shows nothing.
    void setRoundNote(std::function<QString()> note) { m_roundNote = std::move(note); }

    /// What reads the words aloud; without one, which is the start, nothing does. Set before Form_Load; it outlives the
    /// window.
    void setSpeaker(Speaker *speaker) { m_voice = speaker; }

    /// "1" once the quiz is ready, "0" when it could not be built.
    QString Tag() const { return m_tag; }

    /// Builds the quiz from the words of a document and minimises the document's window.
    void Form_Load(const WordSource &words, QWidget &document, const QString &documentTitle);

    /// Goes on with a quiz that was left, in place of Form_Load.
    void resume(LeftQuiz &&quiz, QWidget &document, const QString &documentTitle);
    /// Hands the quiz over once the window has closed.
    LeftQuiz takeQuiz()
    {
        m_session = nullptr;
        return std::move(m_quiz);
    }
    /// The user wants to keep the words that were missed in the last round.
    bool isToKeepMissed() const { return m_keepMissed; }

    /// The quiz that is running; null until it is ready.
    QuizSession *session() const { return m_quiz.session.get(); }

public Q_SLOTS:
    void done(int result) override;

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Sizes;
    static const Sizes Roomy;
    static const Sizes Tight; ///< for small screens

    void begin(QWidget &document, const QString &documentTitle);
    void layOut();
    void takeRoom();
    /// Gives the words their types, scale times as large as at the window's first size.
    void dressTypes(double scale);
    /// Lets the words grow with the window.
    void scaleWords();
    void dressLabels();
    void dressKind();
    void connectControls();
    void connectSession();
    void connectSpeaker();
    void showForKind();
    void showCounters();
    void hideResults();
    QWidget *answerControl() const;
    void focusAnswer();
    /// Has a screen reader say the verdict on the last answer, if there is one, and a text.
    void speak(const QString &text);

    void Form_Activate();
    void Form_Terminate();
    void btnCheck_Click();
    void btnHint_Click();
    void chkAuto_Click(bool on);
    void showRoundStart();
    void showQuestion();
    void showAnswer();
    void showVerdict(bool correct);
    void showTurned(bool correct);
    void showTurning();
    void showScore();
    void showRoundEnd();
    void showMissed();
    void keepMissed();

    std::unique_ptr<Ui::frmOva> m_ui;
    std::unique_ptr<AnswerOptions> m_optAnswer;
    MissedList *m_lstMissed;
    LetterRow *m_letters;
    clsTimer m_tmrSvar;
    clsTimer m_tmrAutoSvar;
    clsAppProperties &m_settings;
    RandomSource &m_random;
    SoundPlayer &m_errorSound;
    QuizPlace m_place;
    const Sizes *m_sizes = &Roomy;
    QSize m_firstSize;      ///< the size at which the words have their first size
    int m_resultHeight = 0; ///< of the result panel at that size
    double m_scale = 1;
    QString m_wordFamily;
    std::function<QString()> m_roundNote;
    QLabel *m_lblNext; ///< the note of the summary
    Speaker *m_voice = nullptr;
    LeftQuiz m_quiz;
    QuizSession *m_session = nullptr;     ///< that of the quiz
    std::unique_ptr<QuizReader> m_reader; ///< null without a speaker
    QPointer<QWidget> m_document;         ///< may close while the quiz is open, when the program is told to end
    Qt::WindowStates m_documentState;
    qint16 m_quizType = 0;
    AskedRows m_askedRows;
    bool m_keepMissed = false;
    QString m_tag = QStringLiteral("0");
    Announcer *m_announcer;
    QWidget *m_speaker = nullptr; ///< the control whose description a screen reader hears
    QString m_spokenVerdict;
};
