#include "quiz/frmOva.h"

#include "platform/SoundPlayer.h"
#include "quiz/MissedList.h"
#include "quiz/OnePress.h"
#include "quiz/QuizLook.h"
#include "quiz/QuizReader.h"
#include "quiz/QuizSpeech.h"
#include "quiz/rules/AnswerLetters.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "resources/TextLanguage.h"
#include "services/Hourglass.h"
#include "services/desktop/Composition.h"
#include "services/desktop/EnterKey.h"
#include "services/settings/clsAppProperties.h"
#include "widgets/Announcer.h"
#include "widgets/LetterRow.h"

#include "ui_frmOva.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QShortcut>

frmOva::frmOva(clsAppProperties &settings, RandomSource &random, SoundPlayer &errorSound, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::frmOva>())
    , m_settings(settings)
    , m_random(random)
    , m_errorSound(errorSound)
    , m_place(*this, settings)
    , m_announcer(new Announcer(this))
{
    m_ui->setupUi(this);
    EnterKey::leaveToDialog(*this);
    const int belowScore = m_ui->layoutQuestion->indexOf(m_ui->lblScore) + 1;
    m_lstMissed = new MissedList(*m_ui->txtSvar, m_ui->picQuestion);
    m_ui->layoutQuestion->insertWidget(belowScore, m_lstMissed, 1);
    m_lblNext = new QLabel(m_ui->picQuestion);
    m_lblNext->setObjectName(QStringLiteral("lblNext"));
    m_ui->layoutQuestion->insertWidget(belowScore, m_lblNext);
    connect(m_lstMissed, &MissedList::keepRequested, this, &frmOva::keepMissed);
    m_letters = new LetterRow(m_ui->picQuestion);
    m_ui->layoutQuestion->insertWidget(m_ui->layoutQuestion->indexOf(m_ui->txtSvar) + 1, m_letters);
    m_letters->setTabOrderAfter(m_ui->txtSvar);
    connect(m_letters, &LetterRow::typed, m_ui->txtSvar, &QLineEdit::insert);
    m_optAnswer =
        std::make_unique<AnswerOptions>(std::array{m_ui->optAnswer0, m_ui->optAnswer1, m_ui->optAnswer2}, nullptr);
}

frmOva::~frmOva()
{
    Form_Terminate();
}

void frmOva::Form_Load(const WordSource &words, QWidget &document, const QString &documentTitle)
{
    auto session = std::make_unique<QuizSession>(QuizKind(m_quizType), m_settings);
    {
        const Hourglass hourglass;
        if (!session->fByggMatriser(words, m_random, m_askedRows))
            return;
    }
    auto missed = std::make_unique<MissedAnswers>(*session);
    m_quiz = {std::move(session), std::move(missed)};
    if (QuizKind(m_quizType) == QuizKind::QuestionAndAnswer)
        m_quiz.letters = answerLetters(words, m_settings.QuizMode(), LetterRow::MostLetters, QLocale());
    begin(document, documentTitle);
    m_session->fShowQuestion();
    takeRoom();
}

void frmOva::resume(LeftQuiz &&quiz, QWidget &document, const QString &documentTitle)
{
    m_quiz = std::move(quiz);
    m_quizType = qint16(m_quiz.session->kind());
    begin(document, documentTitle);
    m_session->resume();
    takeRoom();
}

void frmOva::begin(QWidget &document, const QString &documentTitle)
{
    m_session = m_quiz.session.get();
    m_document = &document;
    m_documentState = document.windowState();
    document.setWindowState(m_documentState | Qt::WindowMinimized);
    m_tag = QStringLiteral("1");
    layOut();
    setWindowTitle(windowTitle() + QStringLiteral(" - ") + TextLanguage::isolated(documentTitle));
    connectControls();
    connectSession();
    connectSpeaker();
}

void frmOva::connectControls()
{
    connect(m_ui->btnCheck, &QPushButton::clicked, this, &frmOva::btnCheck_Click);
    connect(m_ui->btnHint, &QPushButton::clicked, this, &frmOva::btnHint_Click);
    connect(m_ui->btnRep, &QPushButton::clicked, m_session, &QuizSession::fRepeatErrors);
    connect(m_ui->btnRight, &QPushButton::clicked, m_session, &QuizSession::turnVerdict);
    for (const auto &[key, turned] : {std::pair(QKeySequence::Undo, false), std::pair(QKeySequence::Redo, true)}) {
        auto *shortcut = new QShortcut(key, this);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, [this, turned = turned] {
            if (m_session->turned() == turned)
                m_session->turnVerdict();
        });
    }
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &frmOva::reject);
    connect(m_ui->chkAuto, &QCheckBox::clicked, this, &frmOva::chkAuto_Click);
    connect(m_ui->chkError, &QCheckBox::clicked, m_session, &QuizSession::setHintIsError);
    connect(m_ui->chkBeep, &QCheckBox::clicked, m_session, &QuizSession::setBeepOnError);
    connect(m_optAnswer.get(), &AnswerOptions::chosen, m_session, &QuizSession::choose);
    connect(m_ui->txtTime, &QLineEdit::textChanged, m_session, &QuizSession::setAutoSeconds);
    connect(m_ui->txtSvar, &QLineEdit::textChanged, m_session, &QuizSession::setAnswerText);
    connect(&m_tmrSvar, &clsTimer::ThatTime, m_session, &QuizSession::revealTick);
    connect(&m_tmrAutoSvar, &clsTimer::ThatTime, m_session, &QuizSession::autoTick);
    m_ui->txtTime->installEventFilter(this);
    new OnePress(*this, {m_ui->btnCheck, m_ui->btnRight, m_ui->optAnswer0, m_ui->optAnswer1, m_ui->optAnswer2});
}

void frmOva::connectSession()
{
    connect(m_session, &QuizSession::revealIntervalChanged, &m_tmrSvar, &clsTimer::setInterval);
    connect(m_session, &QuizSession::autoIntervalChanged, &m_tmrAutoSvar, &clsTimer::setInterval);
    connect(m_session, &QuizSession::roundStarted, this, &frmOva::showRoundStart);
    connect(m_session, &QuizSession::questionShown, this, &frmOva::showQuestion);
    connect(m_session, &QuizSession::answerRevealed, this, &frmOva::showAnswer);
    connect(m_session, &QuizSession::judged, this, &frmOva::showVerdict);
    connect(m_session, &QuizSession::verdictTurned, this, &frmOva::showTurned);
    connect(m_session, &QuizSession::roundEnded, this, &frmOva::showRoundEnd);
}

void frmOva::connectSpeaker()
{
    if (!m_voice)
        return;
    m_ui->btnSpeak->setIcon(picture(PictureSpeak));
    m_ui->btnSpeak->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    m_reader = std::make_unique<QuizReader>(*m_voice, *m_session, m_settings.quizOptions(), *m_ui->btnSpeak);
}

void frmOva::btnCheck_Click()
{
    if (m_session->done()) {
        accept();
        return;
    }
    Composition::finish();
    m_session->check();
}

void frmOva::btnHint_Click()
{
    Composition::finish();
    m_session->hint();
}

void frmOva::chkAuto_Click(bool on)
{
    m_ui->chkError->setEnabled(on);
    m_ui->txtTime->setEnabled(on);
    m_optAnswer->setChoosingChecks(on);
    m_session->setAutomatic(on);
    // Without a delay nothing would be shown automatically: ask for one.
    if (on && m_session->kind() == QuizKind::Practice && m_settings.AutoTimerInterval() == 0) {
        m_ui->txtTime->setFocus(Qt::OtherFocusReason);
        m_ui->txtTime->selectAll();
    }
}

void frmOva::showQuestion()
{
    const Question &question = m_session->question();
    m_ui->lblLang1->setFullText(question.askedLanguage());
    m_ui->lblLang2->setFullText(question.answerLanguage());
    m_ui->lblFraga->setFullText(question.askedWord());
    m_ui->btnCheck->setText(resText(QuizLook::of(m_session->kind()).check));
    switch (m_session->kind()) {
    case QuizKind::Practice:
        m_ui->lblNote->setRoomFor(question.correctAnswer());
        showAnswer();
        break;
    case QuizKind::MultipleChoice:
        m_optAnswer->offer(question);
        break;
    case QuizKind::QuestionAndAnswer:
        m_ui->txtSvar->setText(m_session->answerText());
        m_ui->txtSvar->setAccessibleName(resText(12012).arg(question.answerLanguage()));
        m_letters->setLetters(m_quiz.letters[size_t(question.answerColumn() - 1)]);
        break;
    }
    showTurning();
    speak(QuizSpeech::state(*m_session));
    focusAnswer();
    setUpdatesEnabled(true);
}

void frmOva::showAnswer()
{
    m_announcer->say(QuizSpeech::hint(*m_session));
    if (m_session->kind() == QuizKind::Practice) {
        m_ui->lblNote->setFullText(m_session->answerText());
        return;
    }
    m_ui->txtSvar->setText(m_session->answerText());
    m_ui->txtSvar->setFocus(Qt::OtherFocusReason);
    m_ui->txtSvar->end(false);
}

void frmOva::showVerdict(bool correct)
{
    setUpdatesEnabled(false);
    m_spokenVerdict = QuizSpeech::verdict(*m_session, correct);
    m_ui->picResult->showVerdict(*m_session, correct, m_spokenVerdict);
    showCounters();
    if (!correct && m_session->beepOnError())
        m_errorSound.play();
}

void frmOva::showTurned(bool correct)
{
    m_spokenVerdict = QuizSpeech::turned(correct);
    m_ui->picResult->showTurned(correct, m_spokenVerdict);
    showCounters();
    showTurning();
    if (m_session->done()) {
        showScore();
        showMissed();
    }
    speak(QuizSpeech::state(*m_session));
    focusAnswer();
}

/// Offers to turn the last verdict. At the end of the round the letter R repeats the errors.
void frmOva::showTurning()
{
    m_ui->btnRight->setVisible(m_session->canTurn());
    if (m_session->done())
        m_ui->btnRight->setText(resText(m_session->turned() ? 14220 : 14219));
    else
        m_ui->btnRight->setText(resText(m_session->turned() ? 14201 : 14200));
}

void frmOva::showCounters()
{
    m_ui->picResult->showCounters(*m_session);
    m_ui->picProgress->setCounts(m_session->questionCount(), m_session->correctCount(), m_session->errorCount());
}

void frmOva::showRoundStart()
{
    setUpdatesEnabled(false);
    showForKind();
    hideResults();
    m_ui->btnHint->setEnabled(true);
    m_ui->btnRep->setEnabled(false);
    showTurning();
}

void frmOva::showRoundEnd()
{
    for (QWidget *control :
         std::initializer_list<QWidget *>{m_ui->lblFraga, m_ui->txtSvar, m_ui->lblLang1, m_ui->lblLang2, m_ui->lblNote})
        control->hide();
    m_optAnswer->setVisible(false);
    m_letters->setLetters({});
    m_ui->lblSum->show();
    m_ui->lblScore->show();
    showScore();
    showMissed();
    showCounters();
    showTurning();
    m_ui->btnHint->setEnabled(false);
    m_ui->btnCheck->setText(resText(921));
    speak((QuizSpeech::state(*m_session) + u' ' + m_lblNext->text()).trimmed());
    m_ui->btnCheck->setFocus(Qt::OtherFocusReason);
    setUpdatesEnabled(true);
}

void frmOva::showScore()
{
    m_ui->lblScore->setText(resText(12006).arg(m_session->correctCount()).arg(m_session->questionCount()));
    m_lblNext->setText(m_roundNote ? m_roundNote() : QString());
    m_lblNext->setHidden(m_lblNext->text().isEmpty());
    m_ui->btnRep->setEnabled(m_session->canRepeat());
}

/// The list takes the free area below the score.
void frmOva::showMissed()
{
    m_lstMissed->setAnswers(m_quiz.missed->ofRound(), m_session->kind() != QuizKind::Practice);
    m_lstMissed->setVisible(!m_quiz.missed->ofRound().empty());
    m_ui->picQuestion->setSizePolicy(QSizePolicy::Preferred,
                                     m_lstMissed->isHidden() ? QSizePolicy::Fixed : QSizePolicy::Expanding);
}

void frmOva::keepMissed()
{
    m_keepMissed = true;
    accept();
}

QWidget *frmOva::answerControl() const
{
    if (m_session->done() || m_session->kind() == QuizKind::Practice)
        return m_ui->btnCheck;
    if (m_session->kind() == QuizKind::MultipleChoice)
        return m_optAnswer->option(0);
    return m_ui->txtSvar;
}

void frmOva::focusAnswer()
{
    // A delay that is being typed is not interrupted by the next question.
    if (focusWidget() != m_ui->txtTime)
        answerControl()->setFocus(Qt::OtherFocusReason);
}

void frmOva::speak(const QString &text)
{
    const QString spoken = (std::exchange(m_spokenVerdict, QString()) + u' ' + text).trimmed();
    if (m_speaker && m_speaker != answerControl())
        m_speaker->setAccessibleDescription(QString());
    const bool stays = m_speaker && m_speaker == answerControl() && m_speaker->hasFocus();
    m_speaker = answerControl();
    m_speaker->setAccessibleDescription(spoken);
    if (stays) // else it is read as the focus comes
        m_announcer->say(spoken);
}

void frmOva::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Form_Activate();
}

void frmOva::Form_Activate()
{
    m_place.opened();
    if (m_ui->txtSvar->isVisible()) {
        m_ui->txtSvar->selectAll();
        m_ui->txtSvar->setFocus(Qt::OtherFocusReason);
    }
}

void frmOva::keyPressEvent(QKeyEvent *event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!plain || !m_optAnswer->chooseByDigit(event->key()))
        QDialog::keyPressEvent(event);
}

void frmOva::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    scaleWords();
}

/// Enter in the box for seconds leads back to the answer.
bool frmOva::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_ui->txtTime || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    answerControl()->setFocus(Qt::OtherFocusReason);
    return true;
}

void frmOva::done(int result)
{
    m_place.keep();
    m_tmrSvar.setInterval(0);
    m_tmrAutoSvar.setInterval(0);
    QDialog::done(result);
    Form_Terminate();
}

void frmOva::Form_Terminate()
{
    if (m_session)
        m_session->settle();
    m_reader.reset();
    QWidget *document = m_document;
    m_document = nullptr;
    if (!document)
        return;
    document->setWindowState(m_documentState);
    if (auto *window = qobject_cast<QMdiSubWindow *>(document); window && window->mdiArea())
        window->mdiArea()->setActiveSubWindow(window);
    document->setFocus(Qt::OtherFocusReason);
}
