#include "quiz/QuizSpeech.h"

#include "quiz/rules/LetterRules.h"
#include "quiz/rules/QuizSession.h"
#include "resources/StringTable.h"

namespace {

constexpr size_t MostChanges = 5; ///< more are too many to listen to

/// As a reader says it: a text of blanks would not be heard.
QString spoken(const QString &letters)
{
    return letters.trimmed().isEmpty() ? resText(14206) : letters;
}

QString change(const QString &given, const QString &expected)
{
    if (given.isEmpty())
        return resText(14203).arg(spoken(expected));
    if (expected.isEmpty())
        return resText(14204).arg(spoken(given));
    // Letters that differ by their size alone sound the same.
    int id = 14205;
    if (given.toLower() == expected.toLower())
        id = given == given.toLower() ? 14207 : 14208;
    return resText(id).arg(spoken(given), spoken(expected));
}

} // namespace

namespace QuizSpeech {

QString verdict(const QuizSession &session, bool correct)
{
    QStringList sentences{correct ? resText(12007) : resText(12008).arg(session.question().correctAnswer())};
    const bool isTyped = session.kind() == QuizKind::QuestionAndAnswer;
    if (const QString remark = QuizSpeech::remark(session.judgement(), correct); isTyped && !remark.isEmpty()) {
        if (correct)
            sentences << resText(14209).arg(session.question().correctAnswer());
        sentences << remark + u'.';
    }
    if (const QString difference = QuizSpeech::difference(session); !difference.isEmpty())
        sentences << resText(14218).arg(difference);
    return sentences.join(u' ');
}

QString turned(bool correct)
{
    return resText(correct ? 14216 : 14217);
}

QString difference(const QuizSession &session)
{
    const QString given = LetterRules::composed(session.givenAnswer());
    const QString expected = LetterRules::composed(session.question().correctAnswer());
    QStringList all;
    for (const Difference::Change &each : session.judgement().difference.changes) {
        if (all.size() < qsizetype(MostChanges))
            all << change(given.mid(each.givenStart, each.givenLength),
                          expected.mid(each.expectedStart, each.expectedLength));
    }
    return all.join(QStringLiteral("; "));
}

QString remark(const Judgement &judgement, bool correct)
{
    if (!correct)
        return judgement.verdict == Judgement::Verdict::Wrong ? QString() : resText(14221);
    const std::pair<bool, int> names[] = {{judgement.forgiven.letterCase, 14211},
                                          {judgement.forgiven.accents, 14212},
                                          {judgement.forgiven.blanksAndPunctuation, 14213},
                                          {judgement.forgiven.brackets, 14214},
                                          {judgement.forgiven.oneOfSeveral, 14215}};
    QStringList all;
    for (const auto &[used, id] : names) {
        if (used)
            all << resText(id);
    }
    return all.isEmpty() ? QString() : resText(14210).arg(all.join(resText(14909)));
}

QString hint(const QuizSession &session)
{
    const QString expected = LetterRules::composed(session.question().correctAnswer());
    const bool isWhole = session.kind() != QuizKind::Practice || session.answerText() == expected;
    return isWhole ? session.answerText() : QString();
}

QString state(const QuizSession &session)
{
    if (session.done())
        return resText(12011).arg(session.correctCount()).arg(session.errorCount());
    const QString counters = resText(12010)
                                 .arg(session.currentQuestion())
                                 .arg(session.questionCount())
                                 .arg(session.correctCount())
                                 .arg(session.errorCount());
    const Question &question = session.question();
    // Both at once, so that a percent sign in a language's name or in a word stays one.
    return resText(12009).arg(question.askedLanguage(), question.askedWord()) + QStringLiteral(". ") + counters;
}

} // namespace QuizSpeech
