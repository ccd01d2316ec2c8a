#include "quiz/QuizResult.h"

#include "quiz/QuizColours.h"
#include "quiz/QuizSpeech.h"
#include "quiz/rules/QuizSession.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "services/desktop/Contrast.h"

#include "ui_QuizResult.h"

namespace {

using Mark = MarkedLabel::Mark;
using Parts = std::vector<MarkedLabel::MarkedPart>;

void keepRoom(QWidget *control)
{
    QSizePolicy policy = control->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control->setSizePolicy(policy);
}

void setBold(QWidget *control)
{
    QFont font = control->font();
    font.setBold(true);
    control->setFont(font);
}

void showCount(QLabel *number, QLabel *title, int count, const QColor &colour)
{
    number->setNum(count);
    number->setAccessibleName(resText(12009).arg(title->text()).arg(count));
    number->setVisible(true);
    title->setVisible(true);
    if (!colour.isValid())
        return;
    QPalette palette;
    if (count > 0)
        palette.setColor(QPalette::WindowText, Contrast::readable(colour, palette));
    number->setPalette(palette);
}

Parts marksOfGiven(const Difference &difference)
{
    Parts parts;
    for (const Difference::Change &change : difference.changes) {
        const Mark mark = change.givenLength == 0      ? Mark::Gap
                          : change.expectedLength == 0 ? Mark::Surplus
                                                       : Mark::Exchanged;
        parts.push_back({change.givenStart, change.givenLength, mark});
    }
    return parts;
}

Parts marksOfExpected(const Difference &difference)
{
    Parts parts;
    for (const Difference::Change &change : difference.changes) {
        if (change.expectedLength > 0)
            parts.push_back({change.expectedStart, change.expectedLength, Mark::Right});
    }
    return parts;
}

} // namespace

QuizResult::QuizResult(QWidget *parent)
    : QFrame(parent)
    , m_ui(std::make_unique<Ui::QuizResult>())
{
    m_ui->setupUi(this);
    m_lblResult = {m_ui->lblResult0, m_ui->lblResult1, m_ui->lblResult2, m_ui->lblResult3};
    m_lblResultTitel = {m_ui->lblResultTitel0, m_ui->lblResultTitel1, m_ui->lblResultTitel2, m_ui->lblResultTitel3};
    for (size_t i = 0; i < m_lblResult.size(); ++i)
        m_lblResultTitel[i]->setBuddy(m_lblResult[i]); // or a reader says the number's name twice
}

QuizResult::~QuizResult() = default;

void QuizResult::dress()
{
    for (QWidget *title : {m_ui->lblPrevTitel, m_ui->lblAnsTitel, m_ui->lblCorrTitel})
        QuizColours::mute(*title);
    for (QWidget *steady : std::initializer_list<QWidget *>{m_ui->lblPrevTitel, m_ui->lblPrev, m_ui->lblAnsTitel,
                                                            m_ui->lblAns, m_ui->lblCorrTitel, m_ui->lblCorr})
        keepRoom(steady);
    for (size_t i = 0; i < m_lblResult.size(); ++i) {
        QuizColours::mute(*m_lblResultTitel[i]);
        setBold(m_lblResult[i]);
        keepRoom(m_lblResultTitel[i]);
        keepRoom(m_lblResult[i]);
    }
}

void QuizResult::setWordType(const QString &family, double size)
{
    for (FittedLabel *label : std::initializer_list<FittedLabel *>{m_ui->lblPrev, m_ui->lblAns, m_ui->lblCorr}) {
        label->setFamily(family);
        label->setTypeSizes(size, 1);
    }
}

void QuizResult::clear()
{
    setResultVisible(false, false);
    m_ui->picMark->clear();
    for (size_t i = 1; i < m_lblResult.size(); ++i) {
        m_lblResult[i]->hide();
        m_lblResultTitel[i]->hide();
    }
}

void QuizResult::showVerdict(const QuizSession &session, bool correct, const QString &spoken)
{
    m_ui->lblPrev->setFullText(session.question().askedWord());
    showAnswer(session, correct);
    showTurned(correct, spoken);
    const bool forgiven = session.judgement().verdict == Judgement::Verdict::Forgiven;
    setResultVisible(true, !correct || forgiven);
}

void QuizResult::showTurned(bool correct, const QString &spoken)
{
    m_ui->picMark->setMark(correct ? PictureRight : PictureWrong);
    m_ui->picMark->setAccessibleName(spoken);
}

void QuizResult::showAnswer(const QuizSession &session, bool correct)
{
    m_ui->lblAns->setFullText(session.givenAnswer());
    m_ui->lblCorr->setFullText(session.question().correctAnswer());
    m_ui->lblAns->setAccessibleDescription(QString());
    if (session.kind() == QuizKind::QuestionAndAnswer &&
        (!correct || session.judgement().verdict == Judgement::Verdict::Forgiven))
        showTypedAnswer(session, correct);
}

/// What was typed is not what was expected to the letter: the difference is shown, or what was forgiven.
void QuizResult::showTypedAnswer(const QuizSession &session, bool correct)
{
    const Judgement &judgement = session.judgement();
    const QString remark = QuizSpeech::remark(judgement, correct);
    m_ui->lblAns->setMarkedText(session.givenAnswer(), marksOfGiven(judgement.difference));
    m_ui->lblAns->setAccessibleDescription(QuizSpeech::difference(session));
    m_ui->lblCorr->setMarkedText(session.question().correctAnswer(), marksOfExpected(judgement.difference), remark);
    m_ui->lblCorr->setAccessibleDescription(remark);
}

void QuizResult::setResultVisible(bool previous, bool exact)
{
    for (QWidget *label :
         std::initializer_list<QWidget *>{m_ui->lblPrevTitel, m_ui->lblPrev, m_ui->lblAnsTitel, m_ui->lblAns})
        label->setVisible(previous);
    m_ui->lblCorrTitel->setVisible(exact);
    m_ui->lblCorr->setVisible(exact);
}

void QuizResult::showCounters(const QuizSession &session)
{
    const std::array counts = {session.questionCount(), session.correctCount() + session.errorCount(),
                               session.correctCount(), session.errorCount()};
    const std::array colours = {QColor(), QColor(), QuizColours::Right, QuizColours::Wrong};
    for (size_t i = 0; i < counts.size(); ++i) {
        if (i == 0 || counts[i] > 0 || session.done() || !m_lblResult[i]->isHidden())
            showCount(m_lblResult[i], m_lblResultTitel[i], counts[i], colours[i]);
    }
}
