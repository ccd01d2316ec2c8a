#include "platform/registry/RegistryTree.h"
#include "quiz/rules/QuizSession.h"
#include "services/settings/clsAppProperties.h"
#include "support/ListWords.h"

struct TurnedVerdictTest : ::testing::Test
{
    TurnedVerdictTest() { begin(QuizKind::QuestionAndAnswer); }

    void begin(QuizKind kind)
    {
        m_session = std::make_unique<QuizSession>(kind, m_settings);
        m_session->setClock([this] { return m_now; });
        QObject::connect(m_session.get(), &QuizSession::settled,
                         [this](const auto &question, bool right, bool hint, int ms) {
                             m_told << question.askedWord() + (right ? " right" : " wrong") + (hint ? " hint " : " ") +
                                           QString::number(ms);
                         });
        SeededRandom random(1);
        ASSERT_TRUE(m_session->fByggMatriser(ListWords{{"one", "1"}, {"two", "2"}, {"three", "3"}}, random));
        m_session->fShowQuestion();
    }

    void type(const QString &text)
    {
        m_now += 50;
        m_session->setAnswerText(text);
        m_session->check();
    }

    /// What has been told since the last time, and the counters.
    std::string told()
    {
        const QString counters = QStringLiteral("; %1/%2").arg(m_session->correctCount()).arg(m_session->errorCount());
        return (std::exchange(m_told, {}).join(", ") + counters).toStdString();
    }

    RegistryTree m_store;
    clsAppProperties m_settings{m_store, "glosaria"};
    std::unique_ptr<QuizSession> m_session;
    QStringList m_told;
    qint64 m_now = 1000;
};

TEST_F(TurnedVerdictTest, AnAnswerIsToldOnceWhenItsVerdictIsFinal)
{
    type("1");
    EXPECT_EQ("one right 50; 1/0", told());
    m_session->turnVerdict();
    EXPECT_EQ("; 1/0", told()) << "only what was wrong can be turned";
    m_session->hint();
    type("x");
    EXPECT_EQ("; 1/1", told());
    m_session->turnVerdict();
    EXPECT_EQ("; 2/0", told());
    type("x");
    EXPECT_EQ("two right hint 50; 2/1", told());
    EXPECT_TRUE(m_session->canRepeat());
    m_session->turnVerdict();
    EXPECT_FALSE(m_session->canRepeat());
    m_session->turnVerdict();
    EXPECT_EQ("; 2/1", told());
    m_session->fRepeatErrors();
    EXPECT_EQ("three wrong 50; 0/0", told());
    EXPECT_FALSE(m_session->canTurn());
    type("x");
    m_session->settle();
    m_session->settle();
    m_session->turnVerdict();
    EXPECT_EQ("three wrong 50; 0/1", told());
}

TEST_F(TurnedVerdictTest, WhatIsNotTypedIsFinalAtOnce)
{
    begin(QuizKind::MultipleChoice);
    m_session->check();
    EXPECT_EQ("one wrong 0; 0/1", told());
    begin(QuizKind::Practice);
    m_session->hint();
    while (m_session->revealing())
        m_session->revealTick();
    m_session->turnVerdict();
    EXPECT_EQ("one wrong 0; 0/1", told());
}
