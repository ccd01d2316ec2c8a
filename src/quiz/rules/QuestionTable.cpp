#include "quiz/rules/QuestionTable.h"

#include "quiz/rules/UsedPairs.h"
#include "services/rules/QuizModes.h"

#include <algorithm>

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
    int word = 1;
};

/// Draws the questions of one quiz.
class Setup
{
public:
    Setup(QuizKind kind, int mode, const WordSource &source, RandomSource &random)
        : m_kind(kind)
        , m_mode(mode)
        , m_source(source)
        , m_random(random)
        , m_answerColumn(QuizModes::answersInSecond(mode) ? 2 : 1)
    {
    }

    bool chooseWords(const AskedRows &rows);
    std::vector<Question> questions();

private:
    void readWords(const AskedRows &rows);
    void drawWords(int most);
    Word wordOfRow(int row) const;
    Word word(int number) const { return wordOfRow(m_rows[size_t(number - 1)]); }
    qsizetype questionCount() const { return qsizetype(m_asked.size()) * (QuizModes::bothWays(m_mode) ? 2 : 1); }
    int drawWord() { return m_random.number(int(m_rows.size()), 1); }
    Choice choose(int k);
    void addWrongOptions(Question &question, int position, Choice choice);
    Question ask(int k);

    QuizKind m_kind;
    int m_mode;
    const WordSource &m_source;
    RandomSource &m_random;
    int m_answerColumn;       ///< of side 1
    Word m_languages;         ///< names A and B
    std::vector<int> m_rows;  ///< where the words stand
    std::vector<int> m_asked; ///< the numbers of the words that are asked
    UsedPairs m_usedPairs;
};

Word Setup::wordOfRow(int row) const
{
    return {{m_source.TextMatrix(row, m_answerColumn), m_source.TextMatrix(row, 3 - m_answerColumn)}};
}

void Setup::readWords(const AskedRows &rows)
{
    const int end = m_source.Rows();
    for (int row = 1; row < end; ++row) {
        if (m_source.TextMatrix(row, 1).isEmpty())
            continue;
        m_rows.push_back(row);
        if (!rows.asks || rows.asks(row))
            m_asked.push_back(int(m_rows.size()));
    }
}

/// Leaves so many of the asked words, in their order.
void Setup::drawWords(int most)
{
    if (most <= 0 || size_t(most) >= m_asked.size())
        return;
    for (int i = 0; i < most; ++i)
        std::swap(m_asked[size_t(i)], m_asked[size_t(m_random.number(int(m_asked.size()) - 1, i))]);
    m_asked.resize(size_t(most));
    std::sort(m_asked.begin(), m_asked.end());
}

bool Setup::chooseWords(const AskedRows &rows)
{
    readWords(rows);
    drawWords(rows.most);
    if (int(m_rows.size()) < QuestionTable::fewestWords(m_kind) || m_asked.empty() ||
        questionCount() > QuestionTable::MostQuestions)
        return false;
    m_languages = wordOfRow(0);
    m_usedPairs = UsedPairs(int(m_asked.size()));
    return true;
}

Choice Setup::choose(int k)
{
    qint16 side = 1;
    auto place = qint16(k);
    if (QuizModes::random(m_mode)) {
        do {
            if (QuizModes::bothWays(m_mode))
                side = m_random.iGenRndNumber(2, 1);
            place = m_random.iGenRndNumber(qint16(m_asked.size()), 1);
        } while (!m_usedPairs.fUnique(k, side, place));
    }
    return {side, m_asked[size_t(place - 1)]};
}

void Setup::addWrongOptions(Question &question, int position, Choice choice)
{
    int first = drawWord();
    while (first == choice.word)
        first = drawWord();
    int second = drawWord();
    while (second == choice.word || second == first)
        second = drawWord();
    question.setField(position == 4 ? 5 : 4, word(first).side(choice.answerSide));
    question.setField(position == 6 ? 5 : 6, word(second).side(choice.answerSide));
}

Question Setup::ask(int k)
{
    const Choice choice = choose(k);
    const int askedSide = 3 - choice.answerSide;
    const Word chosen = word(choice.word);
    Question question;
    int position = Question::FirstOption;
    if (m_kind == QuizKind::MultipleChoice) {
        position = m_random.iGenRndNumber(Question::LastOption, Question::FirstOption);
        addWrongOptions(question, position, choice);
    }
    question.setField(1, m_languages.side(choice.answerSide));
    question.setField(2, m_languages.side(askedSide));
    question.setField(3, QString::number(position));
    question.setField(position, chosen.side(choice.answerSide));
    question.setField(7, chosen.side(askedSide));
    question.setAnswerColumn(choice.answerSide == 1 ? m_answerColumn : 3 - m_answerColumn);
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

bool QuestionTable::fByggMatriser(QuizKind kind, int QuizMode, const WordSource &words, RandomSource &random,
                                  const AskedRows &rows)
{
    Setup setup(kind, QuizMode, words, random);
    if (!setup.chooseWords(rows))
        return false;
    m_questions = setup.questions();
    return true;
}
