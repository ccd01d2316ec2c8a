#include "print/dialogs/frmPageSetup.h"

#include "resources/StringTable.h"
#include "services/FormTexts.h"
#include "services/desktop/EnterKey.h"

#include "ui_frmPageSetup.h"

#include <algorithm>
#include <array>

namespace {

constexpr int PdfFile = 14104;
constexpr int FirstSides = 14101; ///< string of the first way to print on the sides of a sheet
constexpr std::array Sides{QPrinter::DuplexNone, QPrinter::DuplexLongSide, QPrinter::DuplexShortSide};

} // namespace

frmPageSetup::frmPageSetup(std::vector<PrinterOffer> offers, const PrinterSetup &present, QWidget *owner)
    : QDialog(owner)
    , m_ui(std::make_unique<Ui::frmPageSetup>())
    , m_offers(std::move(offers))
{
    m_ui->setupUi(this);
    FormTexts::apply(this);
    EnterKey::leaveToDialog(*this);
    for (size_t i = 0; i < Sides.size(); ++i)
        m_ui->cboSides->addItem(resText(FirstSides + int(i)), Sides[i]);
    fillPrinters(present.printer);
    showPrinter();
    selectPaper(present.paper);
    m_ui->cboSides->setCurrentIndex(std::max(0, m_ui->cboSides->findData(present.duplex)));
    const bool landscape = present.orientation == QPageLayout::Landscape;
    (landscape ? m_ui->optLandscape : m_ui->optPortrait)->setChecked(true);
    connect(m_ui->cboPrinter, &QComboBox::currentIndexChanged, this, &frmPageSetup::showPrinter);
    connect(m_ui->btnOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmPageSetup::~frmPageSetup() = default;

void frmPageSetup::fillPrinters(const QString &present)
{
    for (const PrinterOffer &offer : m_offers)
        m_ui->cboPrinter->addItem(offer.printer.isEmpty() ? resText(PdfFile) : offer.printer, offer.printer);
    m_ui->cboPrinter->setCurrentIndex(std::max(0, m_ui->cboPrinter->findData(present)));
}

const PrinterOffer &frmPageSetup::offer() const
{
    return m_offers[size_t(m_ui->cboPrinter->currentIndex())];
}

/// Offers what the chosen printer can do. The paper stays the same where it has it.
void frmPageSetup::showPrinter()
{
    const auto chosen = m_ui->cboPaper->currentData().value<QPageSize>();
    m_ui->cboPaper->clear();
    for (const QPageSize &paper : offer().papers)
        m_ui->cboPaper->addItem(paper.name(), QVariant::fromValue(paper));
    const auto isChosen = [&chosen](const QPageSize &paper) { return paper.isEquivalentTo(chosen); };
    const bool known = std::any_of(offer().papers.begin(), offer().papers.end(), isChosen);
    selectPaper(known ? chosen : offer().usualPaper);
    m_ui->cboSides->setEnabled(offer().twoSided);
}

/// A paper of no common size is offered as one more.
void frmPageSetup::selectPaper(const QPageSize &paper)
{
    const QList<QPageSize> &papers = offer().papers;
    const auto isPaper = [&paper](const QPageSize &other) { return other.isEquivalentTo(paper); };
    const auto found = std::find_if(papers.begin(), papers.end(), isPaper);
    if (found == papers.end())
        m_ui->cboPaper->addItem(paper.name(), QVariant::fromValue(paper));
    m_ui->cboPaper->setCurrentIndex(int(found - papers.begin()));
}

PrinterSetup frmPageSetup::setup() const
{
    PrinterSetup setup;
    setup.printer = offer().printer;
    setup.paper = m_ui->cboPaper->currentData().value<QPageSize>();
    setup.orientation = m_ui->optLandscape->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait;
    if (m_ui->cboSides->isEnabled())
        setup.duplex = m_ui->cboSides->currentData().value<QPrinter::DuplexMode>();
    return setup;
}
