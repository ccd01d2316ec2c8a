#include "quiz/QuizReader.h"

#include "quiz/rules/QuizSession.h"
#include "support/ListWords.h"
#include "support/StoredSettings.h"

/// Writes down what it is to read, with the codes of the languages; "." ends what was read before.
struct RecordingSpeaker : Speaker
{
    bool there = true;
    std::function<void(const Languages &)> waiting; ///< for the languages
    QStringList said;

    bool isThere() override { return there; }
    void askLanguages(QObject *, const std::function<void(const Languages &)> &tell) override { waiting = tell; }
    void say(const std::vector<Utterance> &texts) override
    {
        QStringList line;
        for (const Utterance &each : texts)
            line += QLocale::languageToCode(each.language) + u':' + each.text;
        said += line.join(u' ');
    }
    void stop() override { said += "."; }
};

struct QuizReaderTest : ::testing::Test, StoredSettings
{
    /// A quiz of two words that are asked in their order, read with these options.
    void start(QuizKind kind, bool question, bool answer)
    {
        reader.reset();
        speaker.said.clear();
        settings.setQuizMode(1);
        session = std::make_unique<QuizSession>(kind, settings);
        const QuizOptions options{.readQuestion = question, .readAnswer = answer};
        reader = std::make_unique<QuizReader>(speaker, *session, options, button);
        SeededRandom random(1);
        ASSERT_TRUE(session->fByggMatriser(words, random));
        session->fShowQuestion();
    }
    void answer(const QString &text)
    {
        session->choose(0);
        if (session->kind() == QuizKind::QuestionAndAnswer)
            session->setAnswerText(text);
        session->check();
        for (int i = 0; i < 20 && session->revealing(); ++i)
            session->revealTick();
    }

    ListWords words{{"dog", "Hund"}, {"cat", "Katze"}, {"cow", "Kuh"}};
    RecordingSpeaker speaker;
    QToolButton button;
    std::unique_ptr<QuizSession> session;
    std::unique_ptr<QuizReader> reader;
};

TEST_F(QuizReaderTest, WhatTheOptionsWantIsReadInItsLanguage)
{
    using enum QuizKind;
    const std::tuple<QuizKind, bool, bool, QString> cases[] = {
        {QuestionAndAnswer, false, false, ""},
        {QuestionAndAnswer, true, false, "en:dog|en:cat|en:cow"},
        {QuestionAndAnswer, false, true, "de:Hund|de:Katze|de:Kuh"},
        {QuestionAndAnswer, true, true, "en:dog|de:Hund en:cat|de:Katze en:cow|de:Kuh"},
        {MultipleChoice, true, true, "en:dog|de:Hund en:cat|de:Katze en:cow|de:Kuh"},
        {Practice, true, true, "en:dog|de:Hund|en:cat|de:Katze|en:cow|de:Kuh"}};
    for (const auto &[kind, question, answers, said] : cases) {
        start(kind, question, answers);
        for (const char *given : {"Hund", "wrong", "Kuh"})
            answer(given);
        EXPECT_EQ(speaker.said.join(u'|'), said);
        EXPECT_TRUE(session->done() && button.isHidden()) << "there is no question any more";
    }
    reader.reset();
    EXPECT_EQ(speaker.said.last(), ".") << "reading ends with the quiz";
}

TEST_F(QuizReaderTest, TheButtonReadsTheQuestionWhereThereIsAVoice)
{
    start(QuizKind::QuestionAndAnswer, false, false);
    EXPECT_TRUE(speaker.said.isEmpty() && !speaker.waiting) << "nothing starts before it is needed";
    button.click();
    button.click();
    EXPECT_EQ(speaker.said.join(u'|'), "en:dog|en:dog");
    speaker.waiting({QLocale::English});
    EXPECT_FALSE(button.isHidden());
    speaker.waiting({QLocale::German});
    EXPECT_TRUE(button.isHidden());

    words.words[0].first = "Words";
    start(QuizKind::QuestionAndAnswer, true, false);
    EXPECT_EQ(speaker.said.join(u'|'), QLocale::languageToCode(QLocale().language()) + ":dog") << "the user's own";

    speaker.there = false;
    start(QuizKind::QuestionAndAnswer, true, true);
    answer("Hund");
    EXPECT_TRUE(button.isHidden() && speaker.said.isEmpty());
}
