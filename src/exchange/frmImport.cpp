#include "exchange/frmImport.h"

#include "exchange/ImportTexts.h"
#include "exchange/rules/text/DelimitedText.h"
#include "exchange/rules/text/TextEncoding.h"
#include "resources/StringTable.h"
#include "resources/TextLanguage.h"
#include "services/FormTexts.h"
#include "services/Hourglass.h"
#include "services/desktop/EnterKey.h"

#include "ui_frmImport.h"

namespace {

constexpr int SheetId = 14515;
constexpr int DeckId = 14516;

/// Separators that have a name, by the strings that say it.
const std::vector<std::pair<int, QString>> &namedSeparators()
{
    static const std::vector<std::pair<int, QString>> all{{14526, QStringLiteral("\t")},
                                                          {14527, QStringLiteral(",")},
                                                          {14528, QStringLiteral(";")},
                                                          {14529, DelimitedText::Dash},
                                                          {14531, DelimitedText::Equals}};
    return all;
}

} // namespace

frmImport::frmImport(const ListSource &source, const QString &name, bool intoActive, QWidget *owner)
    : QDialog(owner)
    , m_source(source)
    , m_name(name)
    , m_ui(std::make_unique<Ui::frmImport>())
    , m_choices(source.proposal())
{
    m_ui->setupUi(this);
    FormTexts::apply(this);
    EnterKey::leaveToDialog(*this);
    setWindowTitle(FormTexts::withoutMnemonic(windowTitle()) + QStringLiteral(" - ") + TextLanguage::isolated(name));
    m_ui->cboSeparator->lineEdit()->setAccessibleName(FormTexts::withoutMnemonic(m_ui->lblSeparator->text()));
    m_ui->optThis->setEnabled(intoActive);
    offerChoices();
    m_ui->chkMarkup->setChecked(source.hasMarkup());
    read();
    const auto readAgain = [this] { read(); };
    const auto showAgain = [this] { showPairs(); };
    connect(m_ui->cboSeparator, &QComboBox::currentTextChanged, this, readAgain);
    connect(m_ui->cboEncoding, &QComboBox::currentIndexChanged, this, readAgain);
    connect(m_ui->cboList, &QComboBox::currentIndexChanged, this, readAgain);
    connect(m_ui->cboFirst, &QComboBox::currentIndexChanged, this, showAgain);
    connect(m_ui->cboSecond, &QComboBox::currentIndexChanged, this, showAgain);
    connect(m_ui->chkMarkup, &QCheckBox::toggled, this, showAgain);
    connect(m_ui->chkNames, &QCheckBox::toggled, this, &frmImport::showNames);
    connect(m_ui->btnSwap, &QPushButton::clicked, this, &frmImport::swapColumns);
    connect(m_ui->btnOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmImport::~frmImport() = default;

/// What does not apply to the kind of file does not show.
void frmImport::offerChoices()
{
    const ListSource::Kind kind = m_source.kind();
    const bool text = kind == ListSource::Kind::Text;
    const bool lists = m_source.lists().size() > 1;
    m_ui->lblSeparator->setVisible(text);
    m_ui->cboSeparator->setVisible(text);
    m_ui->lblEncoding->setVisible(m_source.isEncoded());
    m_ui->cboEncoding->setVisible(m_source.isEncoded());
    m_ui->lblList->setVisible(lists);
    m_ui->cboList->setVisible(lists);
    m_ui->chkNames->setVisible(kind == ListSource::Kind::Text || kind == ListSource::Kind::Workbook);
    FormTexts::setCaption(m_ui->lblList, kind == ListSource::Kind::Package ? DeckId : SheetId);
    m_ui->cboList->setAccessibleName(FormTexts::withoutMnemonic(m_ui->lblList->text()));
    for (const QString &list : m_source.lists())
        m_ui->cboList->addItem(list.isEmpty() ? resText(14564) : list);
    m_ui->cboList->setCurrentIndex(m_choices.list);
    offerSeparators();
    offerEncodings();
}

void frmImport::offerSeparators()
{
    for (const auto &[id, separator] : namedSeparators())
        m_ui->cboSeparator->addItem(resText(id), separator);
    const int known = m_ui->cboSeparator->findData(m_choices.separator);
    if (known >= 0)
        m_ui->cboSeparator->setCurrentIndex(known);
    else
        m_ui->cboSeparator->setEditText(m_choices.separator);
}

void frmImport::offerEncodings()
{
    for (const QByteArray &name : TextEncoding::known())
        m_ui->cboEncoding->addItem(ImportTexts::encoding(name), name);
    int at = m_ui->cboEncoding->findData(m_choices.encoding);
    if (at < 0) {
        at = m_ui->cboEncoding->count();
        m_ui->cboEncoding->addItem(QString::fromLatin1(m_choices.encoding), m_choices.encoding);
    }
    m_ui->cboEncoding->setCurrentIndex(at);
}

QString frmImport::typedSeparator() const
{
    const int named = m_ui->cboSeparator->findText(m_ui->cboSeparator->currentText());
    return named >= 0 ? m_ui->cboSeparator->itemData(named).toString() : m_ui->cboSeparator->currentText();
}

ReadChoices frmImport::readChoices() const
{
    return {typedSeparator(), m_ui->cboEncoding->currentData().toByteArray(),
            std::max(0, m_ui->cboList->currentIndex())};
}

PairChoice frmImport::pairChoice() const
{
    return {std::max(0, m_ui->cboFirst->currentIndex()), std::max(0, m_ui->cboSecond->currentIndex()),
            m_ui->chkNames->isChecked(), m_ui->chkMarkup->isChecked()};
}

void frmImport::setPairChoice(const PairChoice &choice)
{
    m_showing = true;
    m_ui->chkNames->setChecked(choice.names);
    offerColumns();
    m_ui->cboFirst->setCurrentIndex(choice.first);
    m_ui->cboSecond->setCurrentIndex(choice.second);
    m_showing = false;
}

void frmImport::offerColumns()
{
    const QStringList names = Pairs::columnNames(m_table, m_ui->chkNames->isChecked());
    for (QComboBox *box : {m_ui->cboFirst, m_ui->cboSecond}) {
        const int chosen = box->currentIndex();
        box->clear();
        box->addItems(names);
        box->setCurrentIndex(std::clamp(chosen, 0, int(names.size()) - 1));
    }
}

/// Columns that were chosen stay so while the table has them.
void frmImport::read()
{
    const Hourglass hourglass;
    const bool first = m_ui->cboFirst->count() == 0;
    const qsizetype columnsBefore = m_table.columns();
    m_choices = readChoices();
    ListReader::Table result = ListReader::read(m_source, m_choices);
    m_table = std::move(result.table);
    if (result.error != ReadError::None)
        return fail(result.error);
    if (first || m_table.columns() != columnsBefore)
        setPairChoice(Pairs::proposal(m_table, m_ui->chkMarkup->isChecked()));
    else
        setPairChoice(pairChoice());
    showPairs();
}

void frmImport::fail(ReadError error)
{
    Vocabulary none;
    none.append({}, {});
    m_ui->grdPreview->show(std::move(none));
    m_ui->lblDropped->setText(ListReader::message(error).arg(m_name));
    m_ui->btnOK->setEnabled(false);
}

void frmImport::showPairs()
{
    if (m_showing)
        return;
    const PairChoice choice = pairChoice();
    const Pairs::Count count = Pairs::count(m_table, choice);
    m_ui->grdPreview->show(Pairs::take(m_table, choice, ImportPreview::MostRows));
    m_ui->lblDropped->setText(ImportTexts::arriving(count, ImportPreview::MostRows));
    m_ui->btnOK->setEnabled(count.rows > 0);
}

void frmImport::showNames()
{
    setPairChoice(pairChoice());
    showPairs();
}

void frmImport::swapColumns()
{
    PairChoice choice = pairChoice();
    std::swap(choice.first, choice.second);
    setPairChoice(choice);
    showPairs();
}

Vocabulary frmImport::takeWords()
{
    return Pairs::takeAll(std::move(m_table), pairChoice());
}

bool frmImport::intoNew() const
{
    return m_ui->optNew->isChecked();
}
