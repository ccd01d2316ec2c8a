#include "quiz/frmOva.h"

#include "platform/RegistryTree.h"
#include "platform/SoundPlayer.h"
#include "quiz/AnswerOption.h"
#include "quiz/MarkArea.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"
#include "services/rules/clsAppProperties.h"
#include "support/ListWords.h"
#include "widgets/FittedLabel.h"

#include <QCheckBox>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSet>

namespace {

enum Kind { Practice, MultipleChoice, QuestionAndAnswer };

struct CountingSound : SoundPlayer
{
    int plays = 0;
    void play() override { ++plays; }
};

class frmOvaTest : public testing::Test
{
protected:
    frmOvaTest()
    {
        m_area.resize(800, 600);
        m_document = m_area.addSubWindow(new QLineEdit);
        m_area.addSubWindow(new QLineEdit);
        m_area.show();
        m_area.setActiveSubWindow(m_document);
    }

    void open(Kind kind, const ListWords &words)
    {
        window = std::make_unique<frmOva>(settings, m_random, sound);
        window->setQuizType(kind);
        window->Form_Load(words, *m_document, QStringLiteral("Animals"));
        ASSERT_EQ(u"1", window->Tag());
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    template <class Control> Control *control(const QString &name) { return window->findChild<Control *>(name); }
    QWidget *control(const QString &name) { return control<QWidget>(name); }
    bool visible(const QString &name) { return control(name)->isVisible(); }
    QString shown(const QString &label)
    {
        return visible(label) ? control<QLabel>(label)->text() : QStringLiteral("hidden");
    }
    QStringList counters()
    {
        return {shown(QStringLiteral("lblResult0")), shown(QStringLiteral("lblResult1")),
                shown(QStringLiteral("lblResult2")), shown(QStringLiteral("lblResult3"))};
    }
    int mark() { return control<MarkArea>(QStringLiteral("picMark"))->mark(); }
    QLineEdit *answerBox() { return control<QLineEdit>(QStringLiteral("txtSvar")); }
    void key(Qt::Key key) { QTest::keyClick(window->focusWidget(), key); }
    /// Alt and a letter, until the button that they press is up again.
    void mnemonic(Qt::Key key)
    {
        QTest::keyClick(window->focusWidget(), key, Qt::AltModifier);
        const auto buttons = window->findChildren<QAbstractButton *>();
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return std::none_of(buttons.begin(), buttons.end(), [](auto *button) { return button->isDown(); });
        }));
    }
    void type(const QString &text)
    {
        QTest::keyClicks(window->focusWidget(), text);
        key(Qt::Key_Return);
    }
    void click(const QString &name) { QTest::mouseClick(control(name), Qt::LeftButton); }
    int correctOption() { return window->session()->question().correctPosition() - Question::FirstOption; }

    QMdiArea m_area;
    QMdiSubWindow *m_document;
    RegistryTree m_store;
    clsAppProperties settings{m_store, QStringLiteral("glosaria")};
    CountingSound sound;
    SeededRandom m_random{1};
    std::unique_ptr<frmOva> window;
};

const ListWords Animals{{u"dog", u"Hund"}, {u"cat", u"Katze"}, {u"cow", u"Kuh"}};

} // namespace

TEST_F(frmOvaTest, EachKindHasItsControlsAndCaptions)
{
    struct Row
    {
        const char *name;
        int captions[3]; ///< by kind, 0: hidden
    };
    const Row rows[] = {{"btnCheck", {11000, 920, 920}}, {"btnHint", {11001, 0, 923}},  {"chkAuto", {11003, 11004, 0}},
                        {"lblSeconds", {11005, 0, 0}},   {"chkError", {11002, 0, 924}}, {"chkBeep", {912, 912, 912}},
                        {"btnRep", {910, 910, 910}},     {"btnCancel", {900, 900, 900}}};
    for (int kind : {Practice, MultipleChoice, QuestionAndAnswer}) {
        open(Kind(kind), Animals);
        for (const Row &row : rows) {
            EXPECT_EQ(row.captions[kind] != 0, visible(QLatin1String(row.name))) << row.name;
            if (row.captions[kind] == 0)
                continue;
            EXPECT_EQ(resText(row.captions[kind]), control(QLatin1String(row.name))->property("text")) << row.name;
        }
        EXPECT_EQ(kind == Practice, visible(QStringLiteral("lblNote")));
        EXPECT_EQ(kind == Practice, visible(QStringLiteral("txtTime")));
        EXPECT_EQ(kind == MultipleChoice, visible(QStringLiteral("optAnswer2")));
        EXPECT_EQ(kind == QuestionAndAnswer, answerBox()->isVisible());
        EXPECT_EQ(u"English", shown(QStringLiteral("lblLang1")));
        EXPECT_EQ(u"dog", shown(QStringLiteral("lblFraga")));
        EXPECT_EQ(u"German", shown(QStringLiteral("lblLang2")));
        EXPECT_THAT(counters(), testing::ElementsAre(u"3", u"hidden", u"hidden", u"hidden"));
        EXPECT_EQ(resText(916), control(QStringLiteral("lblResult0"))->toolTip());
        EXPECT_EQ(resText(918), control(QStringLiteral("lblResult1"))->toolTip());
        EXPECT_EQ(resText(917), control(QStringLiteral("lblResult2"))->toolTip());
        EXPECT_EQ(resText(919), control(QStringLiteral("lblResult3"))->toolTip());
        EXPECT_FALSE(visible(QStringLiteral("lblPrev")) || visible(QStringLiteral("lblCorr")));
        EXPECT_FALSE(control(QStringLiteral("btnRep"))->isEnabled());
    }
}

TEST_F(frmOvaTest, EveryControlHasTheHelpOfItsKindAndAKeyOfItsOwn)
{
    const int topics[] = {1220, 1230, 1240};
    for (int kind : {Practice, MultipleChoice, QuestionAndAnswer}) {
        open(Kind(kind), Animals);
        QSet<QString> keys;
        for (QWidget *each : window->findChildren<QWidget *>()) {
            if (!each->isVisible())
                continue;
            const auto *button = qobject_cast<QAbstractButton *>(each);
            const auto *label = qobject_cast<QLabel *>(each);
            if (button || qobject_cast<QLineEdit *>(each)) {
                EXPECT_EQ(topics[kind], FormTexts::helpContextId(each)) << each->objectName().toStdString();
                EXPECT_FALSE(each->whatsThis().isEmpty()) << each->objectName().toStdString();
                EXPECT_FALSE(each->accessibleName().isEmpty() && !button) << each->objectName().toStdString();
            }
            const QString caption = button ? button->text() : label && label->buddy() ? label->text() : QString();
            const QKeySequence mnemonic = QKeySequence::mnemonic(caption);
            if (mnemonic.isEmpty())
                continue;
            EXPECT_FALSE(keys.contains(mnemonic.toString())) << mnemonic.toString().toStdString();
            keys.insert(mnemonic.toString());
        }
    }
}

TEST_F(frmOvaTest, QuestionAndAnswerFromTheKeyboard)
{
    settings.setErrorHint(true);
    open(QuestionAndAnswer, Animals);
    EXPECT_EQ(resText(922), answerBox()->selectedText());

    type(QStringLiteral("Hund"));
    EXPECT_EQ(PictureRight, mark());
    EXPECT_EQ(u"dog", shown(QStringLiteral("lblPrev")));
    EXPECT_EQ(u"Hund", shown(QStringLiteral("lblAns")));
    EXPECT_EQ(u"hidden", shown(QStringLiteral("lblCorr")));
    EXPECT_THAT(counters(), testing::ElementsAre(u"3", u"1", u"1", u"hidden"));
    EXPECT_EQ(QString(), answerBox()->text());

    type(QStringLiteral("katze"));
    EXPECT_EQ(PictureWrong, mark());
    EXPECT_EQ(u"katze", shown(QStringLiteral("lblAns")));
    EXPECT_EQ(u"Katze", shown(QStringLiteral("lblCorr")));
    EXPECT_EQ(1, sound.plays);

    mnemonic(Qt::Key_H);
    EXPECT_EQ(u"K", answerBox()->text());
    EXPECT_EQ(answerBox(), window->focusWidget());
    type(QStringLiteral("uh"));
    EXPECT_THAT(counters(), testing::ElementsAre(u"3", u"3", u"1", u"2"));

    EXPECT_EQ(resText(915), shown(QStringLiteral("lblSum")));
    EXPECT_FALSE(visible(QStringLiteral("lblFraga")) || answerBox()->isVisible() ||
                 visible(QStringLiteral("lblLang2")));
    EXPECT_FALSE(control(QStringLiteral("btnHint"))->isEnabled());
    EXPECT_EQ(resText(921), control<QPushButton>(QStringLiteral("btnCheck"))->text());
    EXPECT_EQ(control(QStringLiteral("btnCheck")), window->focusWidget());

    mnemonic(Qt::Key_R);
    EXPECT_THAT(counters(), testing::ElementsAre(u"2", u"hidden", u"hidden", u"hidden"));
    EXPECT_EQ(u"cat", shown(QStringLiteral("lblFraga")));
    EXPECT_EQ(u"hidden", shown(QStringLiteral("lblPrev")));
    EXPECT_EQ(0, mark());
    EXPECT_EQ(answerBox(), window->focusWidget());
    type(QStringLiteral("Katze"));
    type(QStringLiteral("Kuh"));
    EXPECT_THAT(counters(), testing::ElementsAre(u"2", u"2", u"2", u"0"));
    EXPECT_FALSE(control(QStringLiteral("btnRep"))->isEnabled());
    key(Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(frmOvaTest, AHeldKeyDoesNotAnswerTheNextQuestion)
{
    open(QuestionAndAnswer, Animals);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(answerBox(), &held);
    EXPECT_EQ(1, window->session()->currentQuestion());
}

TEST_F(frmOvaTest, PracticeSpellsTheAnswerOutOnItsTimer)
{
    open(Practice, ListWords{{u"one", u"1"}, {u"two", u"2"}});
    mnemonic(Qt::Key_O);
    EXPECT_EQ(QString(), shown(QStringLiteral("lblNote")));
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown(QStringLiteral("lblNote")) == u"1"; }, 2000));
    EXPECT_TRUE(QTest::qWaitFor([this] { return mark() == PictureWrong; }, 3000));
    EXPECT_EQ(QString(), shown(QStringLiteral("lblAns")));
    EXPECT_EQ(u"two", shown(QStringLiteral("lblFraga")));
    EXPECT_EQ(QString(), shown(QStringLiteral("lblNote")));
    key(Qt::Key_Return);
    EXPECT_TRUE(window->session()->revealing());
}

TEST_F(frmOvaTest, PracticeRevealsByItselfAfterTheDelay)
{
    open(Practice, ListWords{{u"one", u"1"}, {u"two", u"2"}});
    auto *seconds = control<QLineEdit>(QStringLiteral("txtTime"));
    EXPECT_FALSE(seconds->isEnabled() || control(QStringLiteral("chkError"))->isEnabled());
    click(QStringLiteral("chkAuto"));
    EXPECT_TRUE(settings.AutoCheck());
    EXPECT_TRUE(window->session()->revealing());
    EXPECT_TRUE(control(QStringLiteral("chkError"))->isEnabled());
    ASSERT_EQ(seconds, window->focusWidget());
    type(QStringLiteral("0.05"));
    EXPECT_EQ(50, settings.AutoTimerInterval());
    EXPECT_EQ(control(QStringLiteral("btnCheck")), window->focusWidget());
    click(QStringLiteral("chkError"));
    EXPECT_TRUE(settings.ErrorHint());
    EXPECT_TRUE(QTest::qWaitFor([this] { return window->session()->done(); }, 10000));
    EXPECT_THAT(counters(), testing::ElementsAre(u"2", u"2", u"1", u"1"));
}

TEST_F(frmOvaTest, MultipleChoiceByDigitsArrowsAndMouse)
{
    open(MultipleChoice, Animals);
    EXPECT_EQ(control(QStringLiteral("optAnswer0")), window->focusWidget());
    key(Qt::Key(Qt::Key_1 + correctOption()));
    EXPECT_EQ(1, window->session()->currentQuestion());
    key(Qt::Key_Return);
    EXPECT_EQ(PictureRight, mark());
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(control<AnswerOption>(QStringLiteral("optAnswer%1").arg(i))->isChecked());

    key(Qt::Key_Up);
    EXPECT_TRUE(control<AnswerOption>(QStringLiteral("optAnswer2"))->isChecked());
    key(Qt::Key_Down);
    EXPECT_TRUE(control<AnswerOption>(QStringLiteral("optAnswer0"))->isChecked());
    EXPECT_EQ(0, window->session()->chosenOption());
    click(QStringLiteral("optAnswer%1").arg((correctOption() + 1) % 3));
    EXPECT_EQ((correctOption() + 1) % 3, window->session()->chosenOption());
    click(QStringLiteral("btnCheck"));
    EXPECT_EQ(PictureWrong, mark());

    key(Qt::Key_Return);
    EXPECT_EQ(QString(), shown(QStringLiteral("lblAns")));
    EXPECT_THAT(counters(), testing::ElementsAre(u"3", u"3", u"1", u"2"));
    EXPECT_FALSE(visible(QStringLiteral("optAnswer0")));
}

TEST_F(frmOvaTest, MultipleChoiceChecksTheChosenOptionByItself)
{
    open(MultipleChoice, Animals);
    mnemonic(Qt::Key_A);
    EXPECT_TRUE(settings.AutoCheck());
    // The arrow keys only look around: what they reach is not chosen yet.
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(control(QStringLiteral("optAnswer2")), window->focusWidget());
    EXPECT_EQ(1, window->session()->currentQuestion());
    key(Qt::Key_Return);
    EXPECT_EQ(2, window->session()->currentQuestion());
    mnemonic(Qt::Key_1);
    EXPECT_EQ(3, window->session()->currentQuestion());
    click(QStringLiteral("optAnswer1"));
    EXPECT_TRUE(window->session()->done());
}

TEST_F(frmOvaTest, TheSoundFollowsItsSetting)
{
    open(QuestionAndAnswer, Animals);
    click(QStringLiteral("chkBeep"));
    EXPECT_FALSE(settings.ErrorBeep());
    EXPECT_EQ(answerBox(), window->focusWidget());
    type(QStringLiteral("?"));
    EXPECT_EQ(0, sound.plays);
    mnemonic(Qt::Key_B);
    type(QStringLiteral("?"));
    EXPECT_EQ(1, sound.plays);
}

TEST_F(frmOvaTest, LongTextsAreFittedAndStandInTheTooltips)
{
    const QString phrase = QStringLiteral("to show & tell ").repeated(12);
    open(MultipleChoice, ListWords(ListWords::Pairs{{phrase, phrase}, {"b", "b"}, {"c", "c"}}));
    window->resize(500, window->height());
    EXPECT_EQ(phrase, control(QStringLiteral("lblFraga"))->toolTip());
    auto *option = control<AnswerOption>(QStringLiteral("optAnswer%1").arg(correctOption()));
    EXPECT_EQ(phrase, option->toolTip());
    EXPECT_TRUE(option->text().endsWith(QChar(0x2026)));
    const QString caption = FormTexts::withoutMnemonic(option->text());
    EXPECT_TRUE(caption.mid(2).chopped(1) == phrase.left(caption.size() - 3)) << caption.toStdString();
    EXPECT_LE(option->fontMetrics().horizontalAdvance(caption.mid(2)), option->width() * 0.97 - 20);
}

TEST_F(frmOvaTest, TheDocumentStepsAsideAndComesBack)
{
    m_document->showMaximized();
    open(Practice, Animals);
    EXPECT_TRUE(m_document->isMinimized());
    key(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(m_document->isMaximized());
    EXPECT_EQ(m_document, m_area.activeSubWindow());
}

TEST_F(frmOvaTest, AQuizThatCannotBeBuiltLeavesTheDocumentAlone)
{
    window = std::make_unique<frmOva>(settings, m_random, sound);
    window->setQuizType(MultipleChoice);
    window->Form_Load(ListWords{{u"dog", u"Hund"}, {u"cat", u"Katze"}}, *m_document, QStringLiteral("Animals"));
    EXPECT_EQ(u"0", window->Tag());
    EXPECT_FALSE(m_document->isMinimized());
}

TEST_F(frmOvaTest, AScreenReaderHearsTheWordTheVerdictAndTheCounters)
{
    open(QuestionAndAnswer, Animals);
    EXPECT_EQ(u"dog", control(QStringLiteral("lblFraga"))->accessibleName());
    EXPECT_EQ(u"English: dog. Question 1 of 3, 0 correct, 0 incorrect.", answerBox()->accessibleDescription());
    type(QStringLiteral("?"));
    EXPECT_EQ(u"Incorrect. The correct answer is Hund. English: cat. Question 2 of 3, 0 correct, 1 incorrect.",
              answerBox()->accessibleDescription());
    EXPECT_EQ(u"Incorrect Answers: 1", control(QStringLiteral("lblResult3"))->accessibleName());
    EXPECT_EQ(u"Answer in German", answerBox()->accessibleName());
    type(QStringLiteral("Katze"));
    type(QStringLiteral("Kuh"));
    EXPECT_EQ(u"Correct. Summary: 2 correct, 1 incorrect.",
              control(QStringLiteral("btnCheck"))->accessibleDescription());
    mnemonic(Qt::Key_R);
    EXPECT_EQ(QString(), control(QStringLiteral("btnCheck"))->accessibleDescription());
}
