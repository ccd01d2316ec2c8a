#include "quiz/rules/QuestionTable.h"
#include "support/ListWords.h"

namespace {

QStringList column(const QuestionTable &table, const QString &(Question::*field)() const)
{
    QStringList texts;
    for (int k = 1; k <= table.count(); ++k)
        texts += (table.question(k).*field)();
    return texts;
}

QStringList numbered(QChar side, int count)
{
    QStringList texts;
    for (int i = 1; i <= count; ++i)
        texts += side + QString::number(i);
    return texts;
}

} // namespace

TEST(RandomSourceTest, NumbersReachBothEndsAndNothingElse)
{
    struct Fixed : RandomSource
    {
        double value = 0;
        double draw() override { return value; }
    } fixed;
    EXPECT_EQ(4, fixed.iGenRndNumber(6, 4));
    fixed.value = std::nextafter(1.0, 0.0);
    EXPECT_EQ(6, fixed.iGenRndNumber(6, 4));
    EXPECT_EQ(32767, fixed.iGenRndNumber(32767, 1));
    EXPECT_EQ(32767, fixed.iGenRndNumber(32767, -32768));
    EXPECT_NE(SeededRandom().draw(), SeededRandom().draw());
}

TEST(QuestionTableTest, NeedsEnoughWordsAndTakesOnlyAsManyAsItCanNumber)
{
    using enum QuizKind;
    const std::tuple<QuizKind, int, int, bool> cases[] = {
        {Practice, 1, 0, false},       {Practice, 1, 1, true},           {QuestionAndAnswer, 5, 1, true},
        {MultipleChoice, 1, 2, false}, {MultipleChoice, 5, 3, true},     {MultipleChoice, 3, 32767, true},
        {Practice, 1, 32768, false},   {MultipleChoice, 5, 16383, true}, {QuestionAndAnswer, 5, 16384, false}};
    for (const auto &[kind, mode, words, built] : cases) {
        SCOPED_TRACE(words);
        QuestionTable table;
        SeededRandom random(3);
        EXPECT_EQ(built, table.fByggMatriser(kind, mode, ListWords::numbered(words), random));
        EXPECT_EQ(built ? words * (mode == 5 ? 2 : 1) : 0, table.count());
    }
}

TEST(QuestionTableTest, OnlyRowsWithAFirstWordCount)
{
    const ListWords words{{"", "allein"}, {"alone", ""}, {" ", "Leerzeichen"}, {"", ""}, {"last", "letzte"}};
    SeededRandom random(1);
    QuestionTable table;
    ASSERT_TRUE(table.fByggMatriser(QuizKind::Practice, 1, words, random));
    EXPECT_THAT(column(table, &Question::askedWord), testing::ElementsAre(u"alone", u" ", u"last"));
    EXPECT_THAT(column(table, &Question::correctAnswer), testing::ElementsAre(u"", u"Leerzeichen", u"letzte"));

    // Without a word there is no quiz, and the table stays as it was.
    EXPECT_FALSE(table.fByggMatriser(QuizKind::Practice, 5, ListWords{{"", "allein"}}, random));
    EXPECT_EQ(3, table.count());
}

TEST(QuestionTableTest, EachModeAsksEveryWordInItsDirectionAndOrder)
{
    constexpr int Words = 60;
    for (QuizKind kind : {QuizKind::Practice, QuizKind::MultipleChoice, QuizKind::QuestionAndAnswer}) {
        for (int mode = 1; mode <= 5; ++mode) {
            SCOPED_TRACE(mode);
            QuestionTable table;
            SeededRandom random{quint64(mode)};
            ASSERT_TRUE(table.fByggMatriser(kind, mode, ListWords::numbered(Words), random));
            const QStringList asked = column(table, &Question::askedWord);

            QStringList expected;
            if (mode != 2 && mode != 4)
                expected += numbered(u'e', Words);
            if (mode != 1 && mode != 3)
                expected += numbered(u'g', Words);
            EXPECT_EQ(mode <= 2, asked == expected);
            EXPECT_THAT(asked, testing::UnorderedElementsAreArray(expected));

            for (int k = 1; k <= table.count(); ++k) {
                const Question &question = table.question(k);
                const bool fromEnglish = question.askedWord().startsWith(u'e');
                EXPECT_EQ(fromEnglish ? "English German" : "German English",
                          question.askedLanguage() + u' ' + question.answerLanguage());
                EXPECT_EQ((fromEnglish ? u'g' : u'e') + question.askedWord().mid(1), question.correctAnswer());
                EXPECT_TRUE(kind == QuizKind::MultipleChoice || question.field(5) + question.field(6) == "");
            }
        }
    }
}

TEST(QuestionTableTest, AsksOnlyTheRowsAskedForAndOffersWordsOfAll)
{
    const ListWords words = ListWords::numbered(40000); // more than a quiz can ask
    const auto third = [](int row) { return row % 3 == 0 && row <= 300; };
    for (const int mode : {1, 3, 5}) {
        for (const int most : {0, 10, 100, 1000}) {
            QuestionTable table;
            SeededRandom random{quint64(most + mode)};
            ASSERT_TRUE(table.fByggMatriser(QuizKind::MultipleChoice, mode, words, random, {third, most}));
            QSet<int> asked;
            bool inOrder = true;
            int offered = 0;
            for (int k = 1, last = 0; k <= table.count(); ++k) {
                const Question &question = table.question(k);
                EXPECT_EQ(question.answerColumn(), question.answerLanguage() == "German" ? 2 : 1);
                asked.insert(question.askedWord().mid(1).toInt());
                inOrder = inOrder && std::exchange(last, question.askedWord().mid(1).toInt()) < last;
                for (int field = 4; field <= 6; ++field)
                    offered = std::max(offered, question.field(field).mid(1).toInt());
            }
            EXPECT_EQ(asked.size(), most == 10 ? 10 : 100);
            EXPECT_EQ(table.count(), asked.size() * (mode == 5 ? 2 : 1));
            EXPECT_TRUE(std::all_of(asked.begin(), asked.end(), third));
            EXPECT_EQ(inOrder, mode == 1);
            EXPECT_GT(offered, 20000);
        }
    }
    QuestionTable table;
    SeededRandom random(1);
    const auto none = [](int) { return false; };
    EXPECT_FALSE(table.fByggMatriser(QuizKind::Practice, 1, words, random, {none}));
    EXPECT_FALSE(table.fByggMatriser(QuizKind::Practice, 1, words, random));
    EXPECT_TRUE(table.fByggMatriser(QuizKind::Practice, 1, words, random, {{}, QuestionTable::MostQuestions}));
}

TEST(QuestionTableTest, MultipleChoiceOffersTwoOtherWordsOfTheAnswersLanguage)
{
    for (int words : {3, 40}) {
        QuestionTable table;
        SeededRandom random(5);
        ASSERT_TRUE(table.fByggMatriser(QuizKind::MultipleChoice, 5, ListWords::numbered(words), random));
        QSet<int> positions;
        QSet<QString> wrong;
        for (int k = 1; k <= table.count(); ++k) {
            const Question &question = table.question(k);
            positions.insert(question.correctPosition());
            QSet<QString> options;
            for (int field = 4; field <= 6; ++field) {
                EXPECT_EQ(question.correctAnswer()[0], question.field(field)[0]);
                options.insert(question.field(field));
            }
            EXPECT_EQ(3, options.size());
            wrong += options - QSet<QString>{question.correctAnswer()};
        }
        EXPECT_GT(wrong.size(), words);
        EXPECT_TRUE(words == 3 || positions == (QSet<int>{4, 5, 6}));
    }
}
