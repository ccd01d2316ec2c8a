#include "quiz/frmOva.h"

#include "quiz/QuizLook.h"
#include "quiz/rules/Seconds.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"
#include "services/desktop/Contrast.h"
#include "services/desktop/ScreenFit.h"

#include "ui_frmOva.h"

#include <QRegularExpressionValidator>

namespace {

constexpr double SmallestType = 1.0;
constexpr int InitialWidth = 620; ///< pixels

void scaleType(QWidget *control, double factor)
{
    QFont font = control->window()->font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
    control->setFont(font);
}

void setBold(QWidget *control)
{
    QFont font = control->font();
    font.setBold(true);
    control->setFont(font);
}

void setMuted(QWidget *control)
{
    QPalette palette = control->palette();
    palette.setColor(QPalette::WindowText, Contrast::readable(palette.color(QPalette::PlaceholderText), palette));
    control->setPalette(palette);
}

void keepRoom(QWidget *control)
{
    QSizePolicy policy = control->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control->setSizePolicy(policy);
}

void dress(QWidget *control, int textId, int whatsThisId)
{
    control->setVisible(textId != 0);
    if (textId == 0)
        return;
    FormTexts::setCaption(control, textId);
    FormTexts::setWhatsThis(control, whatsThisId);
}

} // namespace

struct frmOva::Sizes
{
    double askedType; ///< as multiples of the window's type
    double noteType;
    double answerType;
    double optionType;
    int margin; ///< pixels at the sides
};

const frmOva::Sizes frmOva::Roomy{2.6, 2.0, 1.6, 1.35, 24};
const frmOva::Sizes frmOva::Tight{1.6, 1.4, 1.2, 1.1, 7};

void frmOva::layOut()
{
    FormTexts::apply(this);
    dressTypes(Roomy);
    dressLabels();
    dressKind();
    showForKind();
    hideResults();
}

void frmOva::takeRoom()
{
    if (sizeHint().height() > ScreenFit::room(*this).height())
        dressTypes(Tight);
    // The room stays when the round ends and the question makes way for the summary.
    m_ui->picQuestion->setMinimumHeight(m_ui->picQuestion->sizeHint().height());
    resize(sizeHint().expandedTo(QSize(InitialWidth, 0)));
}

void frmOva::dressTypes(const Sizes &sizes)
{
    m_ui->lblFraga->setTypeSizes(sizes.askedType, SmallestType);
    m_ui->lblNote->setTypeSizes(sizes.noteType, SmallestType);
    m_ui->lblSum->setTypeSizes(sizes.askedType, SmallestType);
    scaleType(m_ui->lblScore, sizes.optionType);
    scaleType(m_ui->txtSvar, sizes.answerType);
    for (int i = 0; i < AnswerOptions::Count; ++i)
        scaleType(m_optAnswer->option(i), sizes.optionType);
    layout()->setContentsMargins(sizes.margin, sizes.margin * 3 / 4, sizes.margin, sizes.margin * 3 / 4);
    layout()->setSpacing(sizes.margin / 2);
}

void frmOva::dressLabels()
{
    m_ui->lblSum->setFullText(resText(915));
    for (QWidget *muted : std::initializer_list<QWidget *>{m_ui->lblLang1, m_ui->lblLang2, m_ui->lblPrevTitel,
                                                           m_ui->lblAnsTitel, m_ui->lblCorrTitel})
        setMuted(muted);
    for (QWidget *steady : std::initializer_list<QWidget *>{m_ui->lblPrevTitel, m_ui->lblPrev, m_ui->lblAnsTitel,
                                                            m_ui->lblAns, m_ui->lblCorrTitel, m_ui->lblCorr})
        keepRoom(steady);
    for (size_t i = 0; i < m_lblResult.size(); ++i) {
        setMuted(m_lblResultTitel[i]);
        setBold(m_lblResult[i]);
        keepRoom(m_lblResultTitel[i]);
        keepRoom(m_lblResult[i]);
    }
}

void frmOva::dressKind()
{
    const QuizLook &look = QuizLook::of(m_session->kind());
    const bool practice = m_session->kind() == QuizKind::Practice;
    FormTexts::setCaption(this, look.title);
    setProperty("helpContextId", look.helpTopic);
    for (QWidget *control : findChildren<QWidget *>()) {
        if (qobject_cast<QAbstractButton *>(control) || qobject_cast<QLineEdit *>(control))
            control->setProperty("helpContextId", look.helpTopic);
    }
    dress(m_ui->btnCheck, look.check, look.checkHelp);
    dress(m_ui->btnHint, look.hint, look.hintHelp);
    dress(m_ui->chkAuto, look.automatic, look.automaticHelp);
    dress(m_ui->chkError, look.error, look.errorHelp);
    m_ui->chkAuto->setChecked(m_session->automatic());
    m_ui->chkError->setChecked(m_session->hintIsError());
    m_ui->chkBeep->setChecked(m_session->beepOnError());
    m_ui->btnRep->setEnabled(false);
    m_optAnswer->setChoosingChecks(m_session->automatic());
    m_ui->txtTime->setVisible(practice);
    m_ui->lblSeconds->setVisible(practice);
    m_ui->txtTime->setText(m_session->autoSeconds());
    m_ui->txtTime->setValidator(new QRegularExpressionValidator(Seconds::pattern(), m_ui->txtTime));
    m_ui->txtTime->setEnabled(m_session->automatic());
    m_ui->chkError->setEnabled(!practice || m_session->automatic());
    m_ui->txtSvar->setPlaceholderText(resText(922));
    m_ui->txtSvar->setPrompt(resText(922));
}

void frmOva::showForKind()
{
    m_ui->lblSum->hide();
    m_ui->lblScore->hide();
    m_ui->lblLang1->show();
    m_ui->lblLang2->show();
    m_ui->lblFraga->show();
    m_ui->lblNote->setVisible(m_session->kind() == QuizKind::Practice);
    m_optAnswer->setVisible(m_session->kind() == QuizKind::MultipleChoice);
    m_ui->txtSvar->setVisible(m_session->kind() == QuizKind::QuestionAndAnswer);
}

void frmOva::hideResults()
{
    setResultVisible(false, false);
    m_ui->picMark->clear();
    for (size_t i = 1; i < m_lblResult.size(); ++i) {
        m_lblResult[i]->hide();
        m_lblResultTitel[i]->hide();
    }
    showCounters();
}

void frmOva::setResultVisible(bool previous, bool correct)
{
    for (QWidget *label :
         std::initializer_list<QWidget *>{m_ui->lblPrevTitel, m_ui->lblPrev, m_ui->lblAnsTitel, m_ui->lblAns})
        label->setVisible(previous);
    m_ui->lblCorrTitel->setVisible(correct);
    m_ui->lblCorr->setVisible(correct);
}
