#include "quiz/rules/QuestionTable.h"

#include "quiz/rules/UsedPairs.h"
#include "services/rules/QuizModes.h"

namespace {

/// A word of the vocabulary, its sides counted from 1: the answer stands on side 1 unless the direction is drawn.
struct Word
{
    std::array<QString, 2> sides;

    const QString &side(int number) const { return sides[size_t(number - 1)]; }
};

/// A word to ask: the side of the answer (1 or 2) and the word's number.
struct Choice
{
    qint16 answerSide = 1;
    qint16 word = 1;
};

constexpr size_t FewestForMultipleChoice = 3;

/// Draws the questions of one quiz.
class Setup
{
public:
    Setup(QuizKind kind, int mode, RandomSource &random)
        : m_kind(kind)
        , m_mode(mode)
        , m_random(random)
    {
    }

    bool readWords(const WordSource &source);
    std::vector<Question> questions();

private:
    Word wordOfRow(const WordSource &source, int row) const;
    int questionCount() const { return QuizModes::bothWays(m_mode) ? 2 * int(m_words.size()) : int(m_words.size()); }
    qint16 drawWord() { return m_random.iGenRndNumber(qint16(m_words.size()), 1); }
    Choice choose(int k);
    void addWrongOptions(Question &question, int position, Choice choice);
    Question ask(int k);
    const Word &word(int number) const { return m_words[size_t(number - 1)]; }

    QuizKind m_kind;
    int m_mode;
    RandomSource &m_random;
    Word m_languages; ///< names A and B
    std::vector<Word> m_words;
    UsedPairs m_usedPairs;
};

Word Setup::wordOfRow(const WordSource &source, int row) const
{
    const int answerColumn = QuizModes::answersInSecond(m_mode) ? 2 : 1;
    return {{source.TextMatrix(row, answerColumn), source.TextMatrix(row, 3 - answerColumn)}};
}

bool Setup::readWords(const WordSource &source)
{
    for (int row = 1; row < source.Rows(); ++row) {
        if (source.TextMatrix(row, 1).isEmpty())
            continue;
        m_words.push_back(wordOfRow(source, row));
        if (questionCount() > QuestionTable::MostQuestions)
            return false;
    }
    m_languages = wordOfRow(source, 0);
    m_usedPairs = UsedPairs(int(m_words.size()));
    return m_words.size() >= (m_kind == QuizKind::MultipleChoice ? FewestForMultipleChoice : 1);
}

Choice Setup::choose(int k)
{
    Choice choice;
    if (!QuizModes::random(m_mode)) {
        choice.word = qint16(k);
        return choice;
    }
    do {
        if (QuizModes::bothWays(m_mode))
            choice.answerSide = m_random.iGenRndNumber(2, 1);
        choice.word = drawWord();
    } while (!m_usedPairs.fUnique(k, choice.answerSide, choice.word));
    return choice;
}

void Setup::addWrongOptions(Question &question, int position, Choice choice)
{
    qint16 first = drawWord();
    while (first == choice.word)
        first = drawWord();
    qint16 second = drawWord();
    while (second == choice.word || second == first)
        second = drawWord();
    question.setField(position == 4 ? 5 : 4, word(first).side(choice.answerSide));
    question.setField(position == 6 ? 5 : 6, word(second).side(choice.answerSide));
}

Question Setup::ask(int k)
{
    const Choice choice = choose(k);
    const int askedSide = 3 - choice.answerSide;
    Question question;
    int position = Question::FirstOption;
    if (m_kind == QuizKind::MultipleChoice) {
        position = m_random.iGenRndNumber(Question::LastOption, Question::FirstOption);
        addWrongOptions(question, position, choice);
    }
    question.setField(1, m_languages.side(choice.answerSide));
    question.setField(2, m_languages.side(askedSide));
    question.setField(3, QString::number(position));
    question.setField(position, word(choice.word).side(choice.answerSide));
    question.setField(7, word(choice.word).side(askedSide));
    return question;
}

std::vector<Question> Setup::questions()
{
    std::vector<Question> all;
    all.reserve(size_t(questionCount()));
    for (int k = 1; k <= questionCount(); ++k)
        all.push_back(ask(k));
    return all;
}

} // namespace

bool QuestionTable::fByggMatriser(QuizKind kind, int QuizMode, const WordSource &words, RandomSource &random)
{
    Setup setup(kind, QuizMode, random);
    if (!setup.readWords(words))
        return false;
    m_questions = setup.questions();
    return true;
}
