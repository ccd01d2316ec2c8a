#include "quiz/frmQuizOptions.h"

#include "resources/StringTable.h"
#include "services/FormTexts.h"
#include "services/desktop/EnterKey.h"
#include "services/settings/clsAppProperties.h"

#include "ui_frmQuizOptions.h"

frmQuizOptions::frmQuizOptions(clsAppProperties &settings, bool canSpeak, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::frmQuizOptions>())
    , m_settings(settings)
{
    m_ui->setupUi(this);
    FormTexts::apply(this);
    EnterKey::leaveToDialog(*this);
    m_ui->grpSpeech->setVisible(canSpeak);
    QuizOptions options = settings.quizOptions();
    m_ui->txtMost->setMaximum(QuizOptions::MostWords);
    m_ui->txtMost->setSpecialValueText(resText(14332));
    m_ui->txtMost->setValue(options.mostWords);
    m_ui->txtMost->selectAll();
    for (const Box &each : boxes(options))
        each.box->setChecked(each.value);
    connect(m_ui->btnOK, &QPushButton::clicked, this, &frmQuizOptions::accept);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &frmQuizOptions::reject);
}

frmQuizOptions::~frmQuizOptions() = default;

std::vector<frmQuizOptions::Box> frmQuizOptions::boxes(QuizOptions &options) const
{
    return {{m_ui->chkCase, options.tolerance.letterCase},
            {m_ui->chkAccents, options.tolerance.accents},
            {m_ui->chkBlanks, options.tolerance.blanksAndPunctuation},
            {m_ui->chkBrackets, options.tolerance.brackets},
            {m_ui->chkOneOfSeveral, options.tolerance.oneOfSeveral},
            {m_ui->chkReadQuestion, options.readQuestion},
            {m_ui->chkReadAnswer, options.readAnswer},
            {m_ui->chkRemember, options.rememberAnswers}};
}

void frmQuizOptions::accept()
{
    QuizOptions options = m_settings.quizOptions();
    options.mostWords = m_ui->txtMost->value();
    for (const Box &each : boxes(options))
        each.value = each.box->isChecked();
    m_settings.setQuizOptions(options);
    QDialog::accept();
}
