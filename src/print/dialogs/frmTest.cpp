#include "print/dialogs/frmTest.h"

#include "services/FormTexts.h"
#include "services/desktop/EnterKey.h"

#include "ui_frmTest.h"

namespace {

void nameLanguage(QWidget *option, const QString &key, const QString &language)
{
    FormTexts::setCaption(option, key + FormTexts::escapeMnemonic(language));
}

} // namespace

frmTest::frmTest(const PrintSource &vocabulary, TestChoice &choice, std::function<int()> newNumber, QWidget *owner)
    : QDialog(owner)
    , m_ui(std::make_unique<Ui::frmTest>())
    , m_choice(choice)
    , m_newNumber(std::move(newNumber))
{
    m_ui->setupUi(this);
    FormTexts::apply(this);
    EnterKey::leaveToDialog(*this);
    showChoice(vocabulary);
    connectControls();
    enableControls();
}

frmTest::~frmTest() = default;

void frmTest::showChoice(const PrintSource &vocabulary)
{
    nameLanguage(m_ui->optAsked0, QStringLiteral("&1 "), vocabulary.first[0]);
    nameLanguage(m_ui->optAsked1, QStringLiteral("&2 "), vocabulary.second[0]);
    (m_choice.kind == TestChoice::Sheet ? m_ui->optSheet : m_ui->optCards)->setChecked(true);
    const std::array asked{m_ui->optAsked0, m_ui->optAsked1, m_ui->optAsked2};
    asked[m_choice.asked]->setChecked(true);
    const int words = TestWords::count(vocabulary);
    m_ui->spnCount->setRange(1, words);
    m_ui->spnCount->setValue(m_choice.count ? m_choice.count : words);
    m_ui->chkShuffled->setChecked(m_choice.shuffled);
    m_ui->spnNumber->setRange(1, TestChoice::LargestNumber);
    m_ui->spnNumber->setValue(m_newNumber());
    m_ui->chkColumns->setChecked(m_choice.columns == 2);
    m_ui->chkName->setChecked(m_choice.nameAndDate);
    m_ui->chkKey->setChecked(m_choice.key);
}

void frmTest::connectControls()
{
    connect(m_ui->optCards, &QRadioButton::toggled, this, &frmTest::enableControls);
    connect(m_ui->chkShuffled, &QCheckBox::toggled, this, &frmTest::enableControls);
    connect(m_ui->btnNew, &QPushButton::clicked, this, [this] { m_ui->spnNumber->setValue(m_newNumber()); });
    connect(m_ui->btnPrint, &QPushButton::clicked, this, [this] { done(Print); });
    connect(m_ui->btnPreview, &QPushButton::clicked, this, [this] { done(Preview); });
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmTest::enableControls()
{
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->lblNumber, m_ui->spnNumber, m_ui->btnNew})
        control->setEnabled(m_ui->chkShuffled->isChecked());
    for (QWidget *control : {m_ui->chkColumns, m_ui->chkName, m_ui->chkKey})
        control->setEnabled(m_ui->optSheet->isChecked());
}

void frmTest::readChoice()
{
    m_choice.kind = m_ui->optSheet->isChecked() ? TestChoice::Sheet : TestChoice::Cards;
    m_choice.asked = m_ui->optAsked0->isChecked()   ? TestChoice::FirstLanguage
                     : m_ui->optAsked1->isChecked() ? TestChoice::SecondLanguage
                                                    : TestChoice::Mixed;
    const bool all = m_ui->spnCount->value() == m_ui->spnCount->maximum();
    m_choice.count = all ? 0 : m_ui->spnCount->value();
    m_choice.shuffled = m_ui->chkShuffled->isChecked();
    m_choice.number = m_ui->spnNumber->value();
    m_choice.columns = m_ui->chkColumns->isChecked() ? 2 : 1;
    m_choice.nameAndDate = m_ui->chkName->isChecked();
    m_choice.key = m_ui->chkKey->isChecked();
}

void frmTest::done(int result)
{
    if (result != Cancelled)
        readChoice();
    QDialog::done(result);
}
