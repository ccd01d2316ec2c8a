#include "quiz/frmOva.h"

#include "platform/SoundPlayer.h"
#include "quiz/AnswerOption.h"
#include "quiz/MarkArea.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"
#include "support/ListWords.h"
#include "support/Shown.h"
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
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    template <class Control = QWidget> Control *control(const QString &name)
    {
        return window->findChild<Control *>(name);
    }
    AnswerOption *option(int index)
    {
        return window->findChild<AnswerOption *>(QStringLiteral("optAnswer%1").arg(index % 3));
    }
    QLineEdit *answerBox() { return control<QLineEdit>("txtSvar"); }
    int mark() { return control<MarkArea>("picMark")->mark(); }

    void key(Qt::Key key) { QTest::keyClick(window->focusWidget(), key); }
    void type(const QString &text)
    {
        QTest::keyClicks(window->focusWidget(), text);
        key(Qt::Key_Return);
    }
    void click(QWidget *target) { QTest::mouseClick(target, Qt::LeftButton); }
    /// Alt and a letter, until the button that they press is up again.
    void mnemonic(Qt::Key key)
    {
        QTest::keyClick(window->focusWidget(), key, Qt::AltModifier);
        const auto buttons = window->findChildren<QAbstractButton *>();
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return std::none_of(buttons.begin(), buttons.end(), [](auto *button) { return button->isDown(); });
        }));
    }

    QMdiArea m_area;
    QMdiSubWindow *m_document;
    CountingSound sound;
    SeededRandom m_random{1};
    std::unique_ptr<frmOva> window;
};

TEST_F(frmOvaTest, EveryStateOfEveryKindShowsItsWordsItsCountersAndWhatCanBeDone)
{
    settings.setErrorHint(true);
    const auto check = [this] { click(control("btnCheck")); };
    const auto hint = [this] { click(control("btnHint")); };
    const auto answer = [this](const QString &text) { return [this, text] { type(text); }; };
    const auto pick = [this] { key(Qt::Key_Down), key(Qt::Key_Return); };
    const auto again = [this] { click(control("btnRep")); };
    const auto start = [] {};
    const std::tuple<Kind, const char *, std::vector<std::pair<std::function<void()>, const char *>>> kinds[] = {
        {Practice,
         "[ ] Show answer &automatically after | (<0>) | &seconds | ([x] &Count as error)",
         {{start,
           "Practice - Animals | English | dog | German | >I &know | I d&ont know | ? | Number Of Questions | *3*"},
          {check, "Practice - Animals | English | cat | German | >I &know | I d&ont know | ? | Previous Word | dog | "
                  "Your Answer | H | Number Of Questions | Answered Questions | Correct Answers | *3* | *1* | *1*"},
          {hint, "Practice - Animals | English | cow | German | >I &know | I d&ont know | ? | Previous Word | cat | "
                 "Your Answer | Correct Answer | K | Number Of Questions | Answered Questions | Correct Answers | "
                 "Incorrect Answers | *3* | *2* | *1* | *1*"},
          {check, "Practice - Animals | Summary | 2 of 3 answered correctly | Cop&y | Keep as &Vocabulary | >Done | (I "
                  "d&ont know) | ? | Previous "
                  "Word | cow | Your Answer | R | Number Of Questions | Answered Questions | Correct Answers | "
                  "Incorrect Answers | *3* | *3* | *2* | *1* | [ ] Show answer &automatically after | (<0>) | &seconds "
                  "| ([x] &Count as error) | [x] &Beep On Error | &Repeat Errors | Cancel"},
          {again,
           "Practice - Animals | English | cat | German | >I &know | I d&ont know | ? | Number Of Questions | *1*"}}},
        {MultipleChoice,
         "[ ] &Automatically check selected answer",
         {{start, "Multiple Choice - Animals | English | dog | German | >[ ] &1 H | [ ] &2 K | [ ] &3 R | Check | ? | "
                  "Number Of Questions | *3*"},
          {pick, "Multiple Choice - Animals | English | cat | German | >[ ] &1 H | [ ] &2 K | [ ] &3 R | Check | ? | "
                 "Previous Word | dog | Your Answer | H | Number Of Questions | Answered Questions | Correct Answers | "
                 "*3* | *1* | *1*"}}},
        {QuestionAndAnswer,
         "[x] &Treat Hint As Error",
         {{start, "Question and Answer - Animals | English | dog | German | ><Type your answer here> | Check | &Hint | "
                  "? | Number Of Questions | *3*"},
          {hint, "Question and Answer - Animals | English | dog | German | ><H> | Check | &Hint | ? | Number Of "
                 "Questions | *3*"},
          {answer(""), "Question and Answer - Animals | English | cat | German | ><> | Check | &Hint | I was &right | "
                       "? | Previous Word | dog | Your Answer | H | Correct Answer | H | Number Of Questions | "
                       "Answered Questions | Incorrect Answers | *3* | *1* | *1*"}}}};
    for (const auto &[kind, boxes, steps] : kinds) {
        open(kind, {{"dog", "H"}, {"cat", "K"}, {"cow", "R"}});
        const QPoint place = control("btnCheck")->pos();
        for (const auto &[step, expected] : steps) {
            step();
            EXPECT_TRUE(QTest::qWaitFor([this] { return !window->session()->revealing(); }));
            const QString asBefore = QString(" | %1 | [x] &Beep On Error | (&Repeat Errors) | Cancel").arg(boxes);
            EXPECT_EQ(shown(*window).remove(asBefore).toStdString(), expected);
            EXPECT_EQ(control("btnCheck")->pos(), place) << "nothing jumps";
        }
    }
}

TEST_F(frmOvaTest, EveryAnswerIsMarkedToldAndTurnedUntilTheNextOne)
{
    open(QuestionAndAnswer);
    auto *turn = control<QPushButton>("btnRight");
    const auto undo = [this] { QTest::keyClick(answerBox(), Qt::Key_Z, Qt::ControlModifier); };
    const auto redo = [this] { QTest::keyClick(answerBox(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); };
    const auto letter = [this](Qt::Key key) { return [this, key] { mnemonic(key); }; };
    const auto answer = [this](const char *text) { return [this, text] { type(text); }; };
    // what is done; then the mark, the beeps so far, whether errors can be repeated, the button that turns the verdict,
    // the answer, and what a screen reader hears
    const std::pair<std::function<void()>, const char *> steps[] = {
        {[] {}, "none 0 - <Type your answer here> English: dog. Question 1 of 3, 0 correct, 0 incorrect."},
        {answer("Hund"), "right 0 - <> Correct. English: cat. Question 2 of 3, 1 correct, 0 incorrect."},
        {answer("katze"),
         "wrong 1 I was &right <> Incorrect. The correct answer is Katze. What differs: small k instead of "
         "capital K. English: cow. Question 3 of 3, 1 correct, 1 incorrect."},
        {undo, "right 1 I was w&rong <> Now correct. English: cow. Question 3 of 3, 2 correct, 0 incorrect."},
        {undo, "right 1 I was w&rong <> Now correct. English: cow. Question 3 of 3, 2 correct, 0 incorrect."},
        {redo, "wrong 1 I was &right <> Now incorrect. English: cow. Question 3 of 3, 1 correct, 1 incorrect."},
        {[&] { QTest::keyClicks(answerBox(), "Kuhh"), undo(); },
         "wrong 1 I was &right <> Now incorrect. English: cow. Question 3 of 3, 1 correct, 1 incorrect."},
        {[&] { turn->setFocus(), key(Qt::Key_Return); },
         "right 1 I was w&rong <> Now correct. English: cow. Question 3 of 3, 2 correct, 0 incorrect."},
        {letter(Qt::Key_R),
         "wrong 1 I was &right <> Now incorrect. English: cow. Question 3 of 3, 1 correct, 1 incorrect."},
        {[&] { click(control("chkBeep")), type("?"); },
         "wrong 1 repeat I &was right <> Incorrect. The correct answer is Kuh. Summary: 1 correct, 2 incorrect."},
        {letter(Qt::Key_W), "right 1 repeat I &was wrong <> Now correct. Summary: 2 correct, 1 incorrect."},
        {letter(Qt::Key_R), "none 1 - <> English: cat. Question 1 of 1, 0 correct, 0 incorrect."},
    };
    for (const auto &[step, expected] : steps) {
        step();
        const QString marked = mark() == PictureRight ? "right" : mark() == PictureWrong ? "wrong" : "none";
        const QString repeat = control("btnRep")->isEnabled() ? "repeat " : "";
        const QString parts = marked + " %1 " + repeat + (turn->isVisible() ? turn->text() : "-") + " <%2> %3";
        const QString typed = answerBox()->isVisible() ? answerBox()->text() : QString();
        const QString heard = window->focusWidget()->accessibleDescription();
        EXPECT_EQ(parts.arg(sound.plays).arg(typed, heard).toStdString(), expected);
    }
    EXPECT_FALSE(settings.ErrorBeep());
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
        [](auto *box) { QTest::keyClicks(box, "x"), QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier); },
    };
    for (const auto &touch : touches) {
        open(QuestionAndAnswer);
        touch(answerBox());
        EXPECT_EQ(resText(922), answerBox()->selectedText());
        type("Hund");
        EXPECT_EQ(u"Hund", control<QLabel>("lblAns")->text());
        QTest::keyClicks(answerBox(), "Kaze");
        QTest::mouseClick(answerBox(), Qt::LeftButton, {}, QPoint(1, answerBox()->height() / 2));
        EXPECT_EQ(0, answerBox()->cursorPosition()) << "what was typed is edited as in any box";
    }
}

TEST_F(frmOvaTest, AHeldKeyOrADoubleClickAnswersOneQuestion)
{
    settings.setAutoCheck(true);
    const auto hold = [this](Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text) {
        for (int i = 0; i < 5; ++i) {
            QTest::simulateEvent(window->focusWidget(), true, key, modifiers, text, i > 0);
            QTest::qWait(i < 2 ? 150 : 0); // a letter presses its button for a while
        }
        QTest::keyRelease(window->focusWidget(), key, modifiers);
    };
    const auto doubleClick = [this](QWidget *target) {
        click(target);
        QTest::mouseDClick(target, Qt::LeftButton);
        QTest::mouseRelease(target, Qt::LeftButton);
    };
    const std::pair<Kind, std::function<void()>> answers[] = {
        {QuestionAndAnswer, [&] { hold(Qt::Key_Return, {}, "\r"); }},
        {QuestionAndAnswer, [&] { control("chkBeep")->setFocus(), hold(Qt::Key_Enter, {}, "\r"); }},
        {QuestionAndAnswer, [&] { doubleClick(control("btnCheck")); }},
        {MultipleChoice, [&] { hold(Qt::Key_2, {}, "2"); }},
        {MultipleChoice, [&] { hold(Qt::Key_3, Qt::AltModifier, "3"); }},
        {MultipleChoice, [&] { doubleClick(option(0)); }},
    };
    for (const auto &each : answers) {
        open(each.first);
        each.second();
        EXPECT_EQ(2, window->session()->currentQuestion()) << &each - answers;
    }
    open(QuestionAndAnswer);
    hold(Qt::Key_1, {}, "1");
    EXPECT_EQ(u"11111", answerBox()->text());
}

TEST_F(frmOvaTest, PracticeSpellsTheAnswersOutByItself)
{
    open(Practice, {{"one", "1"}, {"two", "2"}});
    auto *seconds = control<QLineEdit>("txtTime");
    EXPECT_FALSE(seconds->isEnabled() || control("chkError")->isEnabled());
    click(control("chkAuto"));
    EXPECT_TRUE(settings.AutoCheck() && window->session()->revealing() && control("chkError")->isEnabled());
    ASSERT_EQ(seconds, window->focusWidget());
    type("0.05");
    EXPECT_EQ(50, settings.AutoTimerInterval());
    EXPECT_EQ(control("btnCheck"), window->focusWidget());
    EXPECT_TRUE(QTest::qWaitFor([this] { return window->session()->done(); }));
    QAccessible::queryAccessibleInterface(seconds)->setText(QAccessible::Value, "0.02");
    EXPECT_EQ(20, settings.AutoTimerInterval());
}

TEST_F(frmOvaTest, OptionsAreReachedByArrowsAndMouseAndOnWishCheckedAtOnce)
{
    open(MultipleChoice, ListWords::numbered(5));
    const auto press = [this](Qt::Key each) { return [this, each] { key(each); }; };
    const auto letter = [this](Qt::Key each) { return [this, each] { mnemonic(each); }; };
    const auto second = [this] { click(option(1)); };
    const auto showSecond = [this] {
        const QImage plain = option(1)->grab().toImage();
        key(Qt::Key_Down);
        EXPECT_NE(plain, option(1)->grab().toImage()) << "where the arrows are shows";
    };
    // what is done; then the option that is checked, the one with the focus, and the question
    const std::pair<std::function<void()>, const char *> steps[] = {
        {[] {}, "0 1 1"},
        {press(Qt::Key_Up), "3 3 1"},
        {press(Qt::Key_Down), "1 1 1"},
        {second, "2 2 1"},
        {press(Qt::Key_Return), "0 1 2"},
        {press(Qt::Key_Return), "0 1 3"}, // nothing was chosen
        {letter(Qt::Key_A), "0 1 3"},     // from now on arrows only look around, and Enter chooses what they reach
        {press(Qt::Key_Return), "0 1 3"},
        {press(Qt::Key_Down), "0 1 3"},
        {showSecond, "0 2 3"},
        {press(Qt::Key_Return), "0 1 4"},
        {press(Qt::Key_Return), "0 1 4"},
        {letter(Qt::Key_1), "0 1 5"},
        {second, "2 0 5"},
    };
    for (const auto &[step, expected] : steps) {
        step();
        int checked = 0, focused = 0;
        for (const int number : {1, 2, 3}) {
            checked += option(number - 1)->isChecked() ? number : 0;
            focused += option(number - 1)->hasFocus() ? number : 0;
        }
        const int question = window->session()->currentQuestion();
        EXPECT_EQ(QStringLiteral("%1 %2 %3").arg(checked).arg(focused).arg(question).toStdString(), expected);
    }
    EXPECT_TRUE(settings.AutoCheck() && window->session()->done());
}

TEST_F(frmOvaTest, LongOptionsAreFittedAndStandInTheTooltips)
{
    const QString phrase = QString("to show & tell ").repeated(12);
    open(MultipleChoice, {{phrase, phrase}, {"b", "b"}, {"c", "c"}});
    window->resize(500, window->height());
    const Question &question = window->session()->question();
    const AnswerOption *fitted = option(question.correctPosition() - Question::FirstOption);
    EXPECT_EQ(phrase, fitted->toolTip());
    const QString shownText = FormTexts::withoutMnemonic(fitted->text()).mid(2);
    EXPECT_EQ(phrase.left(shownText.size() - 1) + QChar(0x2026), shownText);
    EXPECT_LE(fitted->fontMetrics().horizontalAdvance(shownText), fitted->width() * 0.97 - 20);
}

TEST_F(frmOvaTest, TheDocumentStepsAsideAndComesBack)
{
    m_document->showMaximized();
    load(MultipleChoice, {{"dog", "Hund"}, {"cat", "Katze"}});
    EXPECT_EQ(u"0", window->Tag());
    EXPECT_FALSE(m_document->isMinimized());
    open(Practice);
    EXPECT_TRUE(m_document->isMinimized());
    key(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(m_document->isMaximized());
    EXPECT_EQ(m_document, m_area.activeSubWindow());
    open(Practice);
    delete m_document; // the program is told to end
    key(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(frmOvaTest, TheResultTellsWhatWasWrongAndWhatWasForgiven)
{
    QuizOptions options;
    options.tolerance = {.letterCase = true, .blanksAndPunctuation = true};
    settings.setQuizOptions(options);
    open(QuestionAndAnswer);
    const auto *exact = control<QLabel>("lblCorr");
    type("HUND ");
    EXPECT_EQ(PictureRight, mark());
    EXPECT_TRUE(exact->isVisible());
    EXPECT_EQ(u"Hund", exact->text());
    EXPECT_EQ(u"Forgiven: capital and small letters, blanks and punctuation", exact->accessibleDescription());
    type("Kaxe");
    EXPECT_EQ(u"x instead of tz", control("lblAns")->accessibleDescription());
    EXPECT_EQ(u"Incorrect. The correct answer is Katze. What differs: x instead of tz. English: cow. "
              u"Question 3 of 3, 1 correct, 1 incorrect.",
              answerBox()->accessibleDescription());
    type("Kuh");
    EXPECT_FALSE(exact->isVisible());
}

TEST_F(frmOvaTest, WordsGrowWithTheWindowWhosePlaceIsRemembered)
{
    const auto type = [this](const char *name) { return control(QString::fromLatin1(name))->font().pointSizeF(); };
    open(QuestionAndAnswer);
    const QSize first = window->size();
    const QSize larger = first * 1.25;
    const std::pair before(type("lblFraga"), type("lblPrev"));
    key(Qt::Key_Escape);
    EXPECT_TRUE(settings.QuizWindow().isEmpty()) << "the user has changed nothing";

    open(QuestionAndAnswer);
    window->resize(larger);
    window->move(30, 20);
    key(Qt::Key_Escape);
    EXPECT_EQ(QRect(QPoint(30, 20), larger), settings.QuizWindow());
    open(QuestionAndAnswer);
    EXPECT_EQ(larger, window->size());
    EXPECT_NEAR(1.25 * before.first, type("lblFraga"), 0.5);
    EXPECT_NEAR(1.25 * before.second, type("lblPrev"), 0.5);
    window->resize(1, 1);
    EXPECT_NEAR(before.first, type("lblFraga"), 0.1) << "large words do not hold the window open";
    EXPECT_LE(window->height(), first.height());
}
