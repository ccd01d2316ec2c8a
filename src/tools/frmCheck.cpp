#include "tools/frmCheck.h"

#include "document/EditCommands.h"
#include "document/ctlGrid.h"
#include "document/frmDoc.h"
#include "document/modUndo.h"
#include "platform/Twips.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"
#include "services/Hourglass.h"
#include "ui_frmCheck.h"

namespace {

constexpr int BottomMargin = 400; ///< twips between the dialog and the lower edge of the main window

bool isBlanks(const Finding &finding)
{
    return finding.kind == Finding::Blanks;
}

} // namespace

frmCheck::frmCheck(frmDoc &document, const Needs &needs, QWidget *owner)
    : ToolDialog(document, owner)
    , m_ui(std::make_unique<Ui::frmCheck>())
    , m_needs(needs)
{
    m_ui->setupUi(this);
    FormTexts::apply(this);
    m_ui->lstFindings->setModel(&m_findings);
    connectControls();
    refresh(0);
}

frmCheck::~frmCheck() = default;

void frmCheck::connectControls()
{
    connect(m_ui->lstFindings->selectionModel(), &QItemSelectionModel::currentChanged, this, &frmCheck::showCurrent);
    connect(m_ui->lstFindings, &QListView::clicked, this, &frmCheck::showCurrent);
    connect(m_ui->btnNext, &QPushButton::clicked, this, [this] { goTo(current() + 1); });
    connect(m_ui->btnTrim, &QPushButton::clicked, this, &frmCheck::trim);
    connect(m_ui->btnTrimAll, &QPushButton::clicked, this, &frmCheck::trimAll);
    connect(m_ui->btnRemove, &QPushButton::clicked, this, &frmCheck::removeRow);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &frmCheck::reject);
}

int frmCheck::current() const
{
    return m_ui->lstFindings->currentIndex().row();
}

void frmCheck::refresh(int line)
{
    fillList();
    goTo(std::min(line, m_findings.rowCount() - 1));
}

bool frmCheck::lookAgain()
{
    const std::vector<Finding> before = m_findings.all();
    const int line = current();
    fillList();
    const std::vector<Finding> &now = m_findings.all();
    const auto same = line < 0 ? now.end() : std::find(now.begin(), now.end(), before[size_t(line)]);
    if (same != now.end())
        goTo(int(same - now.begin()));
    return same != now.end();
}

void frmCheck::fillList()
{
    const Hourglass hourglass;
    if (m_hasDocument)
        document().commitRunningEdit();
    m_findings.lookThrough(m_hasDocument ? document().Rutor() : nullptr);
    const int count = m_findings.rowCount();
    FormTexts::setCaption(m_ui->lblFindings, count ? resText(14133).arg(count) : resText(14146));
    enableButtons();
}

/// Behind the last line comes the first.
void frmCheck::goTo(int line)
{
    const int count = m_findings.rowCount();
    if (count > 0 && line >= 0)
        m_ui->lstFindings->setCurrentIndex(m_findings.index(line % count));
}

void frmCheck::showCurrent()
{
    enableButtons();
    if (current() < 0 || !isVisible())
        return;
    const Finding &finding = m_findings.at(current());
    if (finding.row >= document().Rutor()->Rows())
        return;
    document().endEdit();
    document().select({finding.row, finding.col, finding.row, finding.col});
    if (hidesSelection())
        place();
}

void frmCheck::enableButtons()
{
    const std::vector<Finding> &all = m_findings.all();
    const Finding *finding = current() < 0 ? nullptr : &m_findings.at(current());
    m_ui->btnNext->setEnabled(!all.empty());
    m_ui->btnTrim->setEnabled(finding && isBlanks(*finding));
    m_ui->btnTrimAll->setEnabled(std::any_of(all.begin(), all.end(), isBlanks));
    m_ui->btnRemove->setEnabled(finding && finding->kind == Finding::SamePair);
}

void frmCheck::removeRow()
{
    if (!lookAgain())
        return;
    const int line = current();
    const int row = m_findings.at(line).row;
    document().select({row, 1, row, 2});
    m_needs.edit.Delete(document());
    refresh(line);
}

void frmCheck::trim()
{
    if (!lookAgain())
        return;
    const int line = current();
    const Finding finding = m_findings.at(line);
    m_needs.edit.enter(document(), finding.row, finding.col,
                       VocabularyCheck::trimmed(document().Rutor()->TextMatrix(finding.row, finding.col)));
    refresh(line);
}

void frmCheck::trimAll()
{
    fillList();
    if (!m_ui->btnTrimAll->isEnabled())
        return;
    ctlGrid &grid = *document().Rutor();
    m_needs.undo.selection = document().selection();
    m_needs.undo.snapshot = modUndo::takeSnapshot(grid);
    grid.setRedraw(false);
    for (const Finding &finding : m_findings.all()) {
        if (isBlanks(finding))
            grid.setTextMatrix(finding.row, finding.col,
                               VocabularyCheck::trimmed(grid.TextMatrix(finding.row, finding.col)));
    }
    grid.setRedraw(true);
    document().setDirty(true);
    m_needs.undo.setKind(UndoKind::Replace, &document());
    refresh(0);
}

void frmCheck::workOn(frmDoc &document)
{
    setDocument(document);
    m_hasDocument = true;
    refresh(0);
}

void frmCheck::leaveDocument()
{
    m_hasDocument = false;
    fillList();
}

void frmCheck::done(int result)
{
    if (m_hasDocument)
        document().Rutor()->setFocus();
    ToolDialog::done(result);
}

void frmCheck::showEvent(QShowEvent *event)
{
    ToolDialog::showEvent(event);
    showCurrent();
}

void frmCheck::changeEvent(QEvent *event)
{
    ToolDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        lookAgain();
}

QPoint frmCheck::preferredPlace(const QRect &owner, const QSize &frame) const
{
    return {owner.right() + 1 - frame.width(), owner.bottom() + 1 - frame.height() - Twips::toPixelsY(BottomMargin)};
}
