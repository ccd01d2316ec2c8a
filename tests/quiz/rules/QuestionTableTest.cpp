#include "quiz/rules/QuestionTable.h"
#include "support/ListWords.h"

TEST(QuestionTableTest, NeedsEnoughWordsAndTakesOnlyAsManyAsItCanNumber)
{
    using enum QuizKind;
    const std::tuple<QuizKind, int, int, bool> cases[] = {
        {Practice, 1, 0, false},       {Practice, 1, 1, true},           {QuestionAndAnswer, 5, 1, true},
        {MultipleChoice, 1, 2, false}, {MultipleChoice, 5, 3, true},     {MultipleChoice, 3, 32767, true},
        {Practice, 1, 32768, false},   {MultipleChoice, 5, 16383, true}, {QuestionAndAnswer, 5, 16384, false}};
    for (const auto &[kind, mode, words, built] : cases) {
        QuestionTable table;
        SeededRandom random(3);
        EXPECT_EQ(built, table.fByggMatriser(kind, mode, ListWords::numbered(words), random));
        EXPECT_EQ(built ? words * (mode == 5 ? 2 : 1) : 0, table.count());
        EXPECT_FALSE(table.fByggMatriser(kind, mode, ListWords{{"", "no first word"}}, random));
        EXPECT_EQ(built ? words * (mode == 5 ? 2 : 1) : 0, table.count()) << "it stays as it was";
    }
    struct Fixed : RandomSource
    {
        double value = 0;
        double draw() override { return value; }
    } fixed;
    EXPECT_EQ(4, fixed.iGenRndNumber(6, 4));
    fixed.value = std::nextafter(1.0, 0.0);
    EXPECT_EQ(6, fixed.iGenRndNumber(6, 4));
    EXPECT_NE(SeededRandom().draw(), SeededRandom().draw());
}

TEST(QuestionTableTest, EachKindAsksEveryWordInTheDirectionsAndTheOrderOfEachMode)
{
    for (int round = 0; round < 30; ++round) {
        const bool choice = round % 3 == int(QuizKind::MultipleChoice);
        const int mode = 1 + round / 3 % 5;
        const int words = round < 15 ? 60 : 3;
        QuestionTable table;
        SeededRandom random{quint64(round)};
        ASSERT_TRUE(table.fByggMatriser(QuizKind(round % 3), mode, ListWords::numbered(words), random));
        QStringList inOrder;
        for (const QString side : {"e", "g"}) {
            for (int n = 1; n <= words && (mode == 5 || (side == "e") == (mode % 2 == 1)); ++n)
                inOrder += side + QString::number(n);
        }
        QStringList asked;
        QSet<int> positions;
        QSet<QString> wrong;
        for (int k = 1; k <= table.count(); ++k) {
            const Question &question = table.question(k);
            asked += question.askedWord();
            positions.insert(question.correctPosition());
            const bool fromEnglish = asked.last()[0] == u'e';
            EXPECT_EQ((fromEnglish ? "English German g" : "German English e") + asked.last().mid(1),
                      question.askedLanguage() + u' ' + question.answerLanguage() + u' ' + question.correctAnswer());
            EXPECT_EQ(fromEnglish ? 2 : 1, question.answerColumn());
            QSet<QString> options{question.field(4), question.field(5), question.field(6)};
            EXPECT_EQ(choice ? 3 : 2, options.size());
            options.remove(question.correctAnswer());
            for (const QString &option : options)
                EXPECT_EQ(choice ? question.correctAnswer().left(1) : "", option.left(1));
            wrong += options;
        }
        EXPECT_THAT(asked, testing::UnorderedElementsAreArray(inOrder));
        EXPECT_TRUE(words == 3 || ((mode <= 2) == (asked == inOrder) && positions.size() == (choice ? 3 : 1)));
        EXPECT_TRUE(!choice || wrong.size() > words * 2 / 3);
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
            std::vector<int> asked;
            int offered = 0;
            for (int k = 1; k <= table.count(); ++k) {
                asked.push_back(table.question(k).askedWord().mid(1).toInt());
                for (int field = 4; field <= 6; ++field)
                    offered = std::max(offered, table.question(k).field(field).mid(1).toInt());
            }
            const std::set<int> rows(asked.begin(), asked.end());
            EXPECT_EQ(rows.size(), most == 10 ? 10U : 100U);
            EXPECT_EQ(asked.size(), rows.size() * (mode == 5 ? 2 : 1));
            EXPECT_TRUE(std::all_of(asked.begin(), asked.end(), third));
            EXPECT_EQ(std::is_sorted(asked.begin(), asked.end()), mode == 1);
            EXPECT_GT(offered, 20000);
        }
    }
    QuestionTable table;
    SeededRandom random(1);
    EXPECT_FALSE(table.fByggMatriser(QuizKind::Practice, 1, words, random, {[](int) { return false; }}));
    EXPECT_FALSE(table.fByggMatriser(QuizKind::Practice, 1, words, random));
}
