#include "quiz/frmOva.h"

#include "platform/SoundPlayer.h"
#include "quiz/AnswerOption.h"
#include "quiz/MarkArea.h"
#include "resources/Pictures.h"
#include "services/FormTexts.h"
#include "support/ListWords.h"
#include "support/StoredSettings.h"

enum Kind { Practice, MultipleChoice, QuestionAndAnswer };

struct CountingSound : SoundPlayer
{
    int plays = 0;
    void play() override { ++plays; }
};

struct frmOvaTest : ::testing::Test, StoredSettings
{
    frmOvaTest()
    {
        m_document = m_area.addSubWindow(new QLineEdit);
        m_area.addSubWindow(new QLineEdit);
        m_area.show();
        m_area.setActiveSubWindow(m_document);
    }

    void load(Kind kind, const ListWords &words)
    {
        window = std::make_unique<frmOva>(settings, m_random, sound);
        window->setQuizType(kind);
        window->Form_Load(words, *m_document, "Animals");
    }

    void open(Kind kind, const ListWords &words = {{"dog", "Hund"}, {"cat", "Katze"}, {"cow", "Kuh"}})
    {
        load(kind, words);
        ASSERT_EQ(u"1", window->Tag());
        // Letters are spelled out quickly.
        QObject::connect(session(), &QuizSession::revealIntervalChanged, session(), [this](int milliseconds) {
            if (milliseconds > 1)
                Q_EMIT session()->revealIntervalChanged(1);
        });
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    QuizSession *session() { return window->session(); }
    template <class Control = QWidget> Control *control(const QString &name)
    {
        return window->findChild<Control *>(name);
    }
    QLineEdit *answerBox() { return control<QLineEdit>("txtSvar"); }

    void key(QKeyCombination keys)
    {
        QTest::keyClick(window->focusWidget(), keys.key(), keys.keyboardModifiers());
        // a letter presses its button for a while
        for (const auto *button : window->findChildren<QAbstractButton *>())
            EXPECT_TRUE(QTest::qWaitFor([button] { return !button->isDown(); }));
    }
    void type(const QString &text)
    {
        QTest::keyClicks(window->focusWidget(), text);
        key(Qt::Key_Return);
    }
    void click(QWidget *target) { QTest::mouseClick(target, Qt::LeftButton); }
    /// What the user does, one after the other: the name of what is clicked, a key, or what is typed after "=".
    void act(const QString &acts)
    {
        for (const QString &act : acts.split(u' ', Qt::SkipEmptyParts)) {
            if (QWidget *target = control(act))
                click(target);
            else if (act[0] == u'=')
                type(act.mid(1).replace(u'_', u' '));
            else
                key(QKeySequence(act)[0]);
        }
        EXPECT_TRUE(QTest::qWaitFor([this] { return !session()->revealing(); }));
    }
    /// What shows; the mark, the beeps so far and colours; where the focus is, what is selected and the clipboard; the
    /// list of missed words; then names and what else a screen reader hears of both answers and of the next question.
    QString state()
    {
        const QMap<int, QString> marks{{0, "none"}, {PictureRight, "right"}, {PictureWrong, "wrong"}};
        QStringList parts{shown(*window),
                          marks[control<MarkArea>("picMark")->mark()] + ' ' + QString::number(sound.plays)};
        for (const char *label : {"lblLang1", "lblResultTitel1", "lblResult1", "lblResult2", "lblResult3"})
            parts.last() += u' ' + control(label)->palette().color(QPalette::WindowText).name();
        parts.last() += u' ' + answerBox()->grab().toImage().pixelColor(0, answerBox()->height() - 1).name();
        parts += window->focusWidget()->objectName() + " <" + answerBox()->selectedText() + "> " +
                 QGuiApplication::clipboard()->text().replace(u'\n', u'/').replace(u'\t', u'=');
        const auto *table = control<QTableWidget>("lstMissed");
        for (int cell = -3; table->isVisible() && cell < 3 * table->rowCount(); ++cell) {
            const QTableWidgetItem *item =
                cell < 0 ? table->horizontalHeaderItem(cell + 3) : table->item(cell / 3, cell % 3);
            if (!table->isColumnHidden((cell + 3) % 3))
                parts.last() += " | " + item->text();
        }
        for (const QWidget *told : {control("lblAns"), control("lblCorr"), window->focusWidget()})
            parts += told->accessibleName() + u'|' + told->accessibleDescription();
        return parts.join(u'\n') + u'\n';
    }

    QMdiArea m_area;
    QMdiSubWindow *m_document;
    CountingSound sound;
    SeededRandom m_random{1};
    std::unique_ptr<frmOva> window;
};

/// In transcript.txt a line "quiz KIND OPTIONS WORDS" opens a quiz (f: all is forgiven), "> ACTS" is what the user
/// does.
TEST_F(frmOvaTest, EveryStepOfEveryKindShowsTellsAndOffersWhatTheTranscriptSays)
{
    settings.setErrorHint(true);
    const QString transcript = readFile(SOURCE_FOLDER "/tests/quiz/transcript.txt");
    QString played;
    QPoint place;
    for (const QString &line : transcript.split(u'\n')) {
        if (const QStringList parts = line.split(u' '); parts[0] == "quiz") {
            const bool all = parts[2].contains(u'f');
            settings.setQuizOptions({.tolerance = {all, all, all, all, all}});
            ListWords::Pairs words;
            for (const QString &pair : parts[3].split(u','))
                words.emplace_back(pair.section(u'=', 0, 0), pair.section(u'=', 1));
            open(Kind(parts[1].toInt()), ListWords(words));
            place = control("btnCheck")->pos();
            QGuiApplication::clipboard()->clear();
        } else if (line.startsWith(u'>')) {
            act(line.mid(2));
        } else {
            continue;
        }
        played += line + u'\n' + state();
        EXPECT_EQ(control("btnCheck")->pos(), place) << "nothing jumps";
    }
    EXPECT_EQ(transcript.toStdString(), played.toStdString());
}

TEST_F(frmOvaTest, ThePromptGivesWayAsAWholeHoweverTheBoxIsTouched)
{
    const std::function<void(QLineEdit *)> touches[] = {
        [](auto *box) { QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(60, box->height() / 2)); },
        [](auto *box) { QTest::mouseDClick(box, Qt::LeftButton, {}, QPoint(60, box->height() / 2)); },
        [](auto *box) { QTest::mousePress(box, Qt::LeftButton, Qt::ShiftModifier, QPoint(60, box->height() / 2)); },
        [](auto *box) { QTest::keyClick(box, Qt::Key_Home); },
        [](auto *box) { QTest::keyClick(box, Qt::Key_Left, Qt::ShiftModifier); },
        [](auto *box) { QTest::keyClick(box, Qt::Key_Tab), box->setFocus(); },
        [](auto *box) { QTest::keyClicks(box, "x"), QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier); }};
    for (const auto &touch : touches) {
        open(QuestionAndAnswer);
        touch(answerBox());
        EXPECT_EQ("Type your answer here", answerBox()->selectedText());
        type("Hund");
        EXPECT_EQ(u"Hund", control<QLabel>("lblAns")->text());
        QTest::keyClicks(answerBox(), "Kaze");
        QCoreApplication::sendEvent(window.get(), std::make_unique<QEvent>(QEvent::FontChange).get());
        EXPECT_FALSE(answerBox()->hasSelectedText()) << "nor does what else changes touch it";
        QTest::mouseClick(answerBox(), Qt::LeftButton, {}, QPoint(1, answerBox()->height() / 2));
        EXPECT_EQ(0, answerBox()->cursorPosition()) << "what was typed is edited as in any box";
    }
}

TEST_F(frmOvaTest, AHeldKeyOrADoubleClickAnswersOneQuestion)
{
    settings.setAutoCheck(true);
    const auto hold = [this](QKeyCombination keys) {
        const QString text(QChar(keys.key() < 128 ? keys.key() : int('\r')));
        for (int i = 0; i < 5; ++i) {
            QTest::simulateEvent(window->focusWidget(), true, keys.key(), keys.keyboardModifiers(), text, i > 0);
            QTest::qWait(keys.keyboardModifiers() && i < 2 ? 150 : 0); // a letter presses its button for a while
        }
        QTest::keyRelease(window->focusWidget(), keys.key(), keys.keyboardModifiers());
    };
    const std::tuple<Kind, const char *, const char *> answers[] = {
        {QuestionAndAnswer, "txtSvar", "Return"}, {QuestionAndAnswer, "chkBeep", "Enter"},
        {QuestionAndAnswer, "btnCheck", ""},      {MultipleChoice, "optAnswer0", ""},
        {MultipleChoice, "chkAuto", "2"},         {MultipleChoice, "chkAuto", "Alt+3"}};
    for (const auto &[kind, place, keys] : answers) {
        open(kind);
        control(place)->setFocus();
        if (*keys) {
            hold(QKeySequence(keys)[0]);
        } else {
            click(control(place));
            QTest::mouseDClick(control(place), Qt::LeftButton);
            QTest::mouseRelease(control(place), Qt::LeftButton);
        }
        EXPECT_EQ(2, session()->currentQuestion()) << place;
    }
    open(QuestionAndAnswer);
    hold(Qt::Key_1);
    EXPECT_EQ(u"11111", answerBox()->text());
}

TEST_F(frmOvaTest, PracticeSpellsTheAnswersOutByItself)
{
    open(Practice, {{"one", "1"}, {"two", "2"}});
    QWidget *seconds = control("txtTime");
    click(control("chkAuto"));
    EXPECT_TRUE(settings.AutoCheck() && session()->revealing() && control("chkError")->isEnabled());
    ASSERT_EQ(seconds, window->focusWidget());
    const QSignalSpy pressed(control<QPushButton>("btnCheck"), &QPushButton::clicked);
    type("0.3");
    EXPECT_TRUE(settings.AutoTimerInterval() == 300 && control("btnCheck")->hasFocus() && pressed.isEmpty());
    seconds->setFocus();
    EXPECT_TRUE(QTest::qWaitFor([this] { return session()->currentQuestion() == 2; }) && seconds->hasFocus());
    EXPECT_TRUE(QTest::qWaitFor([this] { return session()->done(); }) && control("lblNote")->accessibleName() == u"2");
    QAccessible::queryAccessibleInterface(seconds)->setText(QAccessible::Value, "0.02");
    EXPECT_EQ(20, settings.AutoTimerInterval());
}

TEST_F(frmOvaTest, LongOptionsAreFittedAndStandInTheTooltips)
{
    const QString phrase = QString("to show & tell ").repeated(12);
    open(MultipleChoice, {{phrase, phrase}, {"b", "b"}, {"c", "c"}});
    window->resize(500, window->height());
    const int position = session()->question().correctPosition() - Question::FirstOption;
    const auto *fitted = control<AnswerOption>(QStringLiteral("optAnswer%1").arg(position));
    EXPECT_EQ(phrase, fitted->toolTip());
    const QString shownText = FormTexts::withoutMnemonic(fitted->text()).mid(2);
    EXPECT_EQ(phrase.left(shownText.size() - 1) + QChar(0x2026), shownText);
    EXPECT_LE(fitted->fontMetrics().horizontalAdvance(shownText), fitted->width() * 0.97 - 20);
    const QImage plain = control("optAnswer0")->grab().toImage();
    act("Alt+A Down");
    EXPECT_NE(plain, control("optAnswer0")->grab().toImage()) << "where the arrows are shows";
}

TEST_F(frmOvaTest, TheDocumentStepsAsideAndComesBackAndAQuizThatWasLeftGoesOn)
{
    m_document->showMaximized();
    load(MultipleChoice, {{"dog", "Hund"}, {"cat", "Katze"}});
    EXPECT_TRUE(window->Tag() == u"0" && !m_document->isMinimized());
    open(MultipleChoice);
    EXPECT_TRUE(m_document->isMinimized());
    const QSize size = window->size();
    act("btnCheck");
    key(Qt::Key_Escape);
    EXPECT_TRUE(!window->isVisible() && m_document->isMaximized() && m_area.activeSubWindow() == m_document);
    LeftQuiz left = window->takeQuiz();
    window = std::make_unique<frmOva>(settings, m_random, sound);
    window->resume(std::move(left), *m_document, "Animals");
    window->show();
    EXPECT_TRUE(m_document->isMinimized() && window->size() == size && session()->currentQuestion() == 2);
    EXPECT_EQ(MultipleChoice, window->QuizType());
    delete m_document; // the program is told to end
    key(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(frmOvaTest, WordsGrowWithTheWindowWhosePlaceIsRemembered)
{
    const auto types = [this] {
        std::vector<double> sizes;
        for (const char *name : {"lblFraga", "lblPrev", "lblCorr", "lblNote", "lblScore", "txtSvar", "optAnswer1"})
            sizes.push_back(control(name)->font().pointSizeF());
        return sizes;
    };
    using namespace testing;
    open(QuestionAndAnswer);
    const QSize first = window->size(), larger = first * 1.25;
    const std::vector<double> before = types();
    std::vector<double> scaled;
    for (const double size : before)
        scaled.push_back(size * 1.25);
    key(Qt::Key_Escape);
    EXPECT_TRUE(settings.QuizWindow().isEmpty()) << "the user has changed nothing";

    open(QuestionAndAnswer);
    window->resize(larger);
    window->move(30, 20);
    key(Qt::Key_Escape);
    EXPECT_EQ(QRect(QPoint(30, 20), larger), settings.QuizWindow());
    open(QuestionAndAnswer);
    EXPECT_EQ(larger, window->size());
    EXPECT_THAT(types(), Pointwise(DoubleNear(0.5), scaled));
    window->resize(1, 1); // large words do not hold the window open
    EXPECT_THAT(types(), Pointwise(DoubleNear(0.1), before));
    window->resize(larger.width(), first.height()); // they need height, too
    EXPECT_THAT(types(), Pointwise(DoubleNear(1), before));
}
