#include "tools/frmFindReplace.h"

#include "document/frmDoc.h"
#include "document/modUndo.h"
#include "platform/Twips.h"
#include "resources/StringTable.h"
#include "services/AlertBox.h"
#include "services/FormTexts.h"
#include "services/Hourglass.h"
#include "services/desktop/EnterKey.h"
#include "services/rules/ProgramFlags.h"
#include "tools/DocumentCells.h"
#include "tools/rules/ReplaceAll.h"
#include "ui_frmFindReplace.h"

#include <QShortcut>

namespace {

constexpr int ReplaceHeight = 700; ///< twips that the replace layout is higher
constexpr int BottomMargin = 400;  ///< twips between the dialog and the lower edge of the main window

} // namespace

frmFindReplace::frmFindReplace(frmDoc &document, const Needs &needs, QWidget *owner)
    : ToolDialog(document, owner)
    , m_ui(std::make_unique<Ui::frmFindReplace>())
    , m_needs(needs)
    , m_snapshot(modUndo::takeSnapshot(*document.Rutor()))
{
    m_ui->setupUi(this);
    EnterKey::leaveToDialog(*this);
    FormTexts::apply(this);
    setUpControls();
    setLayoutFor(needs.flags.ReplaceMode);
    connectControls();
    needs.flags.FindMode = true;
}

frmFindReplace::~frmFindReplace() = default;

void frmFindReplace::nameScopes()
{
    FormTexts::setCaption(m_ui->optScope1, QStringLiteral("&1 ") + FormTexts::escapeMnemonic(document().language(1)));
    FormTexts::setCaption(m_ui->optScope2, QStringLiteral("&2 ") + FormTexts::escapeMnemonic(document().language(2)));
}

void frmFindReplace::setUpControls()
{
    nameScopes();
    m_ui->txtFind->setText(document().Rutor()->Text());
    m_ui->txtFind->selectAll();
    restart();
}

void frmFindReplace::connectControls()
{
    connect(m_ui->btnFind, &QPushButton::clicked, this, [this] { FindNext(Find); });
    connect(m_ui->btnReplace, &QPushButton::clicked, this, [this] {
        if (m_replaceLayout)
            FindNext(ReplaceAndFind);
        else
            widen();
    });
    connect(m_ui->btnReplaceAll, &QPushButton::clicked, this, &frmFindReplace::ReplaceAllMatches);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &frmFindReplace::reject);
    connect(m_ui->txtFind, &QLineEdit::textChanged, this, &frmFindReplace::restart);
    connect(new QShortcut(Qt::Key_F3, this), &QShortcut::activated, this, [this] { findOn(false); });
    connect(new QShortcut(Qt::SHIFT | Qt::Key_F3, this), &QShortcut::activated, this, [this] { findOn(true); });
    for (QAbstractButton *option :
         {static_cast<QAbstractButton *>(m_ui->chkCase), static_cast<QAbstractButton *>(m_ui->chkWord),
          static_cast<QAbstractButton *>(m_ui->optScope0), static_cast<QAbstractButton *>(m_ui->optScope1),
          static_cast<QAbstractButton *>(m_ui->optScope2)})
        connect(option, &QAbstractButton::clicked, this, &frmFindReplace::restart);
}

void frmFindReplace::restart()
{
    m_search.ResetSearch();
    const bool searchable = !m_ui->txtFind->text().isEmpty();
    for (QPushButton *button : {m_ui->btnFind, m_ui->btnReplace, m_ui->btnReplaceAll})
        button->setEnabled(searchable);
}

void frmFindReplace::setLayoutFor(bool replace)
{
    m_replaceLayout = replace;
    FormTexts::setCaption(this, replace ? 7001 : 7000);
    FormTexts::setWhatsThis(this, replace ? 20051 : 20043);
    FormTexts::setHelpContextId(this, replace ? 1170 : 1160);
    FormTexts::setCaption(m_ui->btnReplace, replace ? 7007 : 7008);
    FormTexts::setWhatsThis(m_ui->btnReplace, replace ? 20053 : 20049);
    const QSize whole = sizeWithReplace(true);
    const QSize find = sizeWithReplace(false);
    const int replaceHeight = std::max(whole.height(), find.height() + Twips::toPixelsY(ReplaceHeight));
    sizeWithReplace(replace);
    setFixedSize(whole.width(), replace ? replaceHeight : find.height());
}

QSize frmFindReplace::sizeWithReplace(bool shown)
{
    m_ui->lblReplace->setVisible(shown);
    m_ui->txtReplace->setVisible(shown);
    m_ui->btnReplaceAll->setVisible(shown);
    layout()->activate();
    return layout()->totalSizeHint();
}

void frmFindReplace::widen()
{
    setLayoutFor(true);
    m_needs.flags.FindMode = false;
    m_needs.flags.ReplaceMode = true;
    m_ui->txtReplace->setFocus();
    place();
}

void frmFindReplace::showAgain(bool replace)
{
    if (replace && !m_replaceLayout)
        widen();
    show();
    raise();
    activateWindow();
}

QPoint frmFindReplace::preferredPlace(const QRect &owner, const QSize &frame) const
{
    return {owner.right() + 1 - frame.width(), owner.bottom() + 1 - frame.height() - Twips::toPixelsY(BottomMargin)};
}

void frmFindReplace::ReadOptions()
{
    m_search.SearchFlags = m_ui->optScope0->isChecked()   ? SearchFlag::WholeDocument
                           : m_ui->optScope1->isChecked() ? SearchFlag::Language1
                                                          : SearchFlag::Language2;
    if (m_ui->chkCase->isChecked())
        m_search.SearchFlags |= SearchFlag::MatchCase;
    if (m_ui->chkWord->isChecked())
        m_search.SearchFlags |= SearchFlag::WholeWords;
    m_search.FindWhat = m_ui->txtFind->text();
    m_ReplaceWith = m_ui->txtReplace->text();
    m_needs.lastSearch = m_search;
}

void frmFindReplace::FindNext(Mode mode)
{
    if (!m_hasDocument)
        return;
    std::optional<Search::Match> match;
    {
        const Hourglass hourglass;
        if (mode == ReplaceAndFind)
            replaceMatch();
        document().commitRunningEdit(); // so that the search sees it and keeps it
        ReadOptions();
        const GridCells cells(*document().Rutor());
        match = mode == FindBack ? m_search.FindPrevious(cells) : m_search.FindNext(cells);
        if (match)
            showMatch(*match);
    }
    if (!match)
        endRegion(resText(m_search.FoundAny ? 7014 : 7013));
}

void frmFindReplace::findOn(bool backwards)
{
    if (m_ui->btnFind->isEnabled())
        FindNext(backwards ? FindBack : Find);
}

void frmFindReplace::replaceMatch()
{
    ctlGrid &grid = *document().Rutor();
    const Qt::CaseSensitivity sensitivity =
        m_search.SearchFlags & SearchFlag::MatchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const bool isMatch = grid.EditMode() && grid.Row() == m_search.CurRow && grid.Col() == m_search.CurCol &&
                         !m_search.FindWhat.isEmpty() && grid.SelText().compare(m_search.FindWhat, sensitivity) == 0;
    if (!isMatch)
        return;
    grid.setSelText(m_ReplaceWith);
    document().commitRunningEdit();
    noteReplacement();
    m_search.SkipReplacement(m_ReplaceWith);
}

void frmFindReplace::noteReplacement()
{
    m_ReplaceWasMade = true;
    document().setDirty(true);
}

void frmFindReplace::showMatch(const Search::Match &match)
{
    ctlGrid &grid = *document().Rutor();
    grid.setRow(match.row);
    grid.setCol(match.col);
    if (!grid.RowIsVisible(match.row))
        grid.setTopRow(match.row);
    grid.setEditMode(true);
    grid.SelectEditText(match.start, match.length);
    if (hidesSelection())
        place();
}

void frmFindReplace::ReplaceAllMatches()
{
    if (!m_hasDocument)
        return;
    ReplaceAll::Summary summary;
    {
        const Hourglass hourglass;
        document().commitRunningEdit(); // so that the search sees it and keeps it
        ReadOptions();
        ctlGrid &grid = *document().Rutor();
        grid.setRedraw(false);
        DocumentCells cells(document());
        summary = ReplaceAll(m_search, m_ReplaceWith).run(cells);
        grid.setRedraw(true);
        if (summary.count > 0) {
            noteReplacement();
            showMatch({summary.row, summary.col, summary.end, 0});
        }
    }
    endRegion(resText(14901).arg(resText(7014), QString::number(summary.count), resText(7015)));
}

void frmFindReplace::endRegion(const QString &message)
{
    m_search.ResetSearch();
    // the last step: the dialog may be gone afterwards, with the document that was closed meanwhile
    m_needs.alert.show(this, {message, resText(507), Alert::Ok, 0, true});
}

void frmFindReplace::leaveDocument()
{
    if (!std::exchange(m_hasDocument, false))
        return;
    document().endEdit();
    m_needs.undo.clear(); // an entry in the document that is left is nothing to undo in the other
}

void frmFindReplace::workOn(frmDoc &document)
{
    leaveDocument();
    setDocument(document);
    m_hasDocument = true;
    m_snapshot = modUndo::takeSnapshot(*document.Rutor());
    m_ReplaceWasMade = false;
    nameScopes();
    restart();
}

void frmFindReplace::done(int result)
{
    if (m_hasDocument)
        document().endEdit();
    m_needs.flags.FindMode = m_needs.flags.ReplaceMode = false;
    if (std::exchange(m_hasDocument, false)) {
        document().Rutor()->setFocus();
        if (m_ReplaceWasMade)
            leaveUndoStep();
    }
    ToolDialog::done(result);
}

void frmFindReplace::leaveUndoStep()
{
    m_needs.undo.selection = document().selection();
    m_needs.undo.snapshot = std::move(m_snapshot);
    m_needs.undo.setKind(UndoKind::Replace, &document());
    document().setDirty(true); // it may have been saved since, and the undo step leads away from the file
}
