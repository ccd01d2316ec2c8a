#include "quiz/frmOva.h"

#include "quiz/MissedList.h"
#include "quiz/QuizColours.h"
#include "quiz/QuizLook.h"
#include "quiz/rules/Seconds.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"
#include "services/desktop/ScreenFit.h"

#include "ui_frmOva.h"

#include <QRegularExpressionValidator>

#include <algorithm>
#include <cmath>

namespace {

constexpr double SmallestType = 1.0;
constexpr int InitialWidth = 620; ///< pixels
constexpr double LargestScale = 6;
constexpr double ScaleStep = 0.02; ///< a smaller change of the scale does not show

void scaleType(QWidget *control, double factor, const QString &family)
{
    QFont font = control->window()->font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
    if (!family.isEmpty())
        font.setFamilies({family, font.family()});
    control->setFont(font);
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
    dressTypes(1);
    dressLabels();
    dressKind();
    showForKind();
    hideResults();
}

void frmOva::takeRoom()
{
    if (sizeHint().height() > ScreenFit::room(*this).height()) {
        m_sizes = &Tight;
        dressTypes(1);
    }
    // The room stays when the round ends and the question makes way for the summary.
    m_ui->picQuestion->setMinimumHeight(m_ui->picQuestion->sizeHint().height());
    m_resultHeight = m_ui->picResult->sizeHint().height();
    const QSize firstSize = sizeHint().expandedTo(QSize(InitialWidth, 0));
    resize(firstSize);
    m_firstSize = firstSize;
    m_place.restore();
}

void frmOva::scaleWords()
{
    if (m_firstSize.isEmpty())
        return;
    const double share = std::min(double(width()) / m_firstSize.width(), double(height()) / m_firstSize.height());
    const double scale = std::clamp(share, 1.0, LargestScale);
    if (std::abs(scale - m_scale) < ScaleStep && scale > 1)
        return;
    // What the words take beyond their first size must not keep the window from being made smaller.
    m_ui->picResult->setMinimumHeight(scale > 1 ? m_resultHeight : 0);
    m_scale = scale;
    dressTypes(scale);
}

void frmOva::dressTypes(double scale)
{
    const Sizes &sizes = *m_sizes;
    for (FittedLabel *label : {m_ui->lblFraga, m_ui->lblNote})
        label->setFamily(m_wordFamily);
    m_ui->lblFraga->setTypeSizes(sizes.askedType * scale, SmallestType);
    m_ui->lblNote->setTypeSizes(sizes.noteType * scale, SmallestType);
    m_ui->lblSum->setTypeSizes(sizes.askedType * scale, SmallestType);
    m_ui->picResult->setWordType(m_wordFamily, scale);
    scaleType(m_ui->lblScore, sizes.optionType * scale, QString());
    scaleType(m_ui->txtSvar, sizes.answerType * scale, m_wordFamily);
    for (int i = 0; i < AnswerOptions::Count; ++i)
        scaleType(m_optAnswer->option(i), sizes.optionType * scale, m_wordFamily);
    layout()->setContentsMargins(sizes.margin, sizes.margin * 3 / 4, sizes.margin, sizes.margin * 3 / 4);
    layout()->setSpacing(sizes.margin / 2);
}

void frmOva::dressLabels()
{
    m_ui->lblSum->setFullText(resText(915));
    QuizColours::mute(*m_ui->lblLang1);
    QuizColours::mute(*m_ui->lblLang2);
    m_ui->picResult->dress();
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
    m_lblNext->hide();
    m_lstMissed->hide();
    m_ui->picQuestion->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_ui->lblLang1->show();
    m_ui->lblLang2->show();
    m_ui->lblFraga->show();
    m_ui->lblNote->setVisible(m_session->kind() == QuizKind::Practice);
    m_optAnswer->setVisible(m_session->kind() == QuizKind::MultipleChoice);
    m_ui->txtSvar->setVisible(m_session->kind() == QuizKind::QuestionAndAnswer);
}

void frmOva::hideResults()
{
    m_ui->picResult->clear();
    showCounters();
}
