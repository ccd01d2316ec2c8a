#pragma once

#include "quiz/AnswerOptions.h"
#include "quiz/rules/QuizSession.h"
#include "widgets/clsTimer.h"

#include <QDialog>
#include <QPointer>

#include <memory>

class clsAppProperties;
class QLabel;
class SoundPlayer;

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

    /// "1" once the quiz is ready, "0" when it could not be built.
    QString Tag() const { return m_tag; }

    /// Builds the quiz from the words of a document and minimises the document's window.
    void Form_Load(const WordSource &words, QWidget &document, const QString &documentTitle);

    /// The quiz that is running; null until it is ready.
    QuizSession *session() const { return m_session.get(); }

public Q_SLOTS:
    void done(int result) override;

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Sizes;
    static const Sizes Roomy;
    static const Sizes Tight; ///< for small screens

    void layOut();
    void takeRoom();
    void dressTypes(const Sizes &sizes);
    void dressLabels();
    void dressKind();
    void connectControls();
    void connectSession();
    void showForKind();
    void showCounters();
    void hideResults();
    void setResultVisible(bool previous, bool correct);
    QWidget *answerControl() const;
    void focusAnswer();
    /// Has a screen reader say the verdict on the last answer, if there is one, and a text.
    void speak(const QString &text);

    void Form_Activate();
    void Form_Terminate();
    void btnCheck_Click();
    void btnHint_Click();
    void btnRep_Click();
    void chkAuto_Click(bool on);
    void showRoundStart();
    void showQuestion();
    void showAnswer();
    void showVerdict(bool correct);
    void showRoundEnd();

    std::unique_ptr<Ui::frmOva> m_ui;
    std::unique_ptr<AnswerOptions> m_optAnswer;
    std::array<QLabel *, 4> m_lblResult;
    std::array<QLabel *, 4> m_lblResultTitel;
    clsTimer m_tmrSvar;
    clsTimer m_tmrAutoSvar;
    clsAppProperties &m_settings;
    RandomSource &m_random;
    SoundPlayer &m_errorSound;
    std::unique_ptr<QuizSession> m_session;
    QPointer<QWidget> m_document; ///< may close while the quiz is open, when the program is told to end
    Qt::WindowStates m_documentState;
    qint16 m_quizType = 0;
    AskedRows m_askedRows;
    QString m_tag = QStringLiteral("0");
    QWidget *m_speaker = nullptr; ///< the control whose description a screen reader hears
    QString m_spokenVerdict;
};
