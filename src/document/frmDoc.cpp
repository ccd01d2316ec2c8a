#include "document/frmDoc.h"

#include "document/DocumentCloser.h"
#include "document/GridContent.h"
#include "document/GridLetters.h"
#include "document/ctlGrid.h"
#include "document/ctlGridEdit.h"
#include "document/rules/GridRules.h"
#include "document/rules/QuizModeText.h"
#include "document/rules/Vocabulary.h"
#include "platform/Twips.h"
#include "resources/StringTable.h"
#include "services/rules/ProgramFlags.h"
#include "services/settings/clsAppProperties.h"
#include "services/status/modSBFunc.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QMdiSubWindow>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr int KeyTab = 9;
constexpr int KeyEnter = 13;
constexpr int KeyEscape = 27;
constexpr int KeyDelete = 46;
constexpr int KeyF2 = 113;
constexpr int ShiftAlone = 1;
constexpr int RightButton = 2;
constexpr int RowNumberWidth = 340;
constexpr int ColumnMargin = 360;
constexpr int FirstRows = 101;
constexpr int OwnCursor = 99;
constexpr int AlignLeftCenter = 1;
constexpr int AlignRightCenter = 7;
constexpr int ResizeRowsAndColumns = 3;
constexpr int ZoomText = 14958;
constexpr int ZoomNoteTime = 2000; // milliseconds

VocabularyFont fontOf(const clsAppProperties &settings)
{
    return {settings.FontName(), double(settings.FontSize()), settings.FontBold(), settings.FontItalic(),
            settings.FontColor()};
}

} // namespace

frmDoc::frmDoc(const Shared &shared, QWidget *parent)
    : QWidget(parent)
    , m_shared(shared)
    , m_grid(new ctlGrid(&shared.flags, this))
    , m_edit(shared.undo, shared.flags, this)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_grid);
    setFocusProxy(m_grid);
    m_grid->loadProperties(ctlGrid::documentDesign());
    connectGrid();
    m_zoomNote.setSingleShot(true);
    connect(&m_zoomNote, &QTimer::timeout, this, &frmDoc::forgetZoom);
}

void frmDoc::connectGrid()
{
    connect(m_grid, &ctlGrid::BeforeEdit, this, [this] { onBeforeEdit(); });
    connect(m_grid, &ctlGrid::AfterEdit, this,
            [this](int &row, int &col) { finishEdit(RunningEdit::End::Committed, row, col); });
    connect(m_grid, &ctlGrid::KeyDown, this, &frmDoc::onKeyDown);
    connect(m_grid, &ctlGrid::KeyUp, this, [this] { m_shiftAlone = false; });
    connect(m_grid, &ctlGrid::KeyPress, this, [this](int &keyAscii) { onKeyPress(keyAscii); });
    connect(m_grid, &ctlGrid::RowColChange, this, &frmDoc::onRowColChange);
    connect(m_grid, &ctlGrid::SelChange, this, &frmDoc::refreshCellReference);
    connect(m_grid, &ctlGrid::MouseMove, this, &frmDoc::onMouseMove);
    connect(m_grid, &ctlGrid::MouseUp, this, [this](int button, int, float x, float y) { onMouseUp(button, x, y); });
    connect(m_grid->hwndText(), &ctlGridEdit::menuRequested, this, &frmDoc::menuRequested);
    connect(m_grid, &ctlGrid::Scroll, m_grid, &ctlGrid::RefreshTextPos);
    connect(m_grid, &ctlGrid::ZoomWanted, this, &frmDoc::zoomBy);
}

void frmDoc::showLetters(bool shown)
{
    if (shown == (m_letters != nullptr))
        return;
    delete std::exchange(m_letters, shown ? new GridLetters(*m_grid, this) : nullptr);
    if (m_letters)
        layout()->addWidget(m_letters);
}

QString frmDoc::folder() const
{
    return m_docName.isEmpty() ? QString() : QFileInfo(m_docName).path();
}

void frmDoc::setCaption(const QString &caption)
{
    m_caption = caption;
    setWindowTitle(caption + QStringLiteral("[*]"));
}

void frmDoc::setUpGrid(const QSize &innerSize)
{
    setUpdatesEnabled(false);
    resize(innerSize);
    m_grid->setRowNumbers(true);
    m_grid->setAllowUserResizing(ResizeRowsAndColumns);
    m_grid->setWordWrap(true);
    m_grid->setColAlignment(0, AlignRightCenter);
    m_grid->setColAlignment(1, AlignLeftCenter);
    m_grid->setColAlignment(2, AlignLeftCenter);
    const int column = Twips::fromPixelsX(innerSize.width()) / 2 - ColumnMargin;
    m_grid->setColWidth(0, RowNumberWidth);
    m_grid->setColWidth(1, std::max(column, ColumnMargin));
    m_grid->setColWidth(2, std::max(column, ColumnMargin));
    m_grid->setFillStyle(1);
    m_grid->setHighLight(1);
    m_grid->setFocusRect(1);
    m_grid->setTextMatrix(0, 1, resText(501));
    m_grid->setTextMatrix(0, 2, resText(502));
    GridContent::applyFont(*m_grid, fontOf(m_shared.settings));
    m_grid->setRows(FirstRows);
    m_grid->setCol(1);
    m_grid->setRow(1);
    showLetters(m_shared.settings.ShowLetters());
    m_grid->setZoom(m_shared.settings.GridZoom());
    refreshQuizMode();
}

QWidget *frmDoc::frame() const
{
    if (auto *frame = qobject_cast<QMdiSubWindow *>(parentWidget()))
        return frame;
    return const_cast<frmDoc *>(this);
}

void frmDoc::showDocument()
{
    setUpdatesEnabled(true);
    show();
    frame()->show();
    m_grid->setFocus();
}

void frmDoc::commitRunningEdit()
{
    m_grid->finishComposing();
    if (!m_grid->EditMode() || !m_edit.isToStore(m_grid->EditText(), m_grid->Text()))
        return;
    m_grid->setText(m_grid->EditText());
    m_edit.store(m_grid->Text());
    makeRoomFor(m_grid->Row(), m_grid->Col());
    setDirty(true);
}

QString frmDoc::language(int column) const
{
    return m_grid->TextMatrix(0, column);
}

GridSelection frmDoc::selection() const
{
    return m_grid->selection();
}

void frmDoc::select(const GridSelection &selection)
{
    m_grid->Select(selection.Row, selection.Col, selection.RowSel, selection.ColSel);
}

void frmDoc::refreshCellReference()
{
    m_shared.status.SBSetText(1, modSBFunc::SBT_SUNKEN, GridRules::cellReference(selection()));
}

void frmDoc::refreshQuizMode()
{
    QString text = quizModeText(m_shared.settings.QuizMode(), language(1), language(2));
    if (!m_quizModeNote.isEmpty())
        text += u' ' + m_quizModeNote;
    m_shared.status.SBSetText(2, modSBFunc::SBT_SUNKEN, text);
}

void frmDoc::setQuizModeNote(const QString &note)
{
    m_quizModeNote = note;
    refreshQuizMode();
}

void frmDoc::activated()
{
    refreshCellReference();
    refreshQuizMode();
    m_shared.undo.clear();
}

void frmDoc::closeEvent(QCloseEvent *event)
{
    event->setAccepted(!m_closer || m_closer->close(*this));
}

void frmDoc::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    m_grid->setFocus();
}

void frmDoc::onBeforeEdit()
{
    m_edit.begin(m_grid->Row(), m_grid->Col(), m_grid->Text());
    Q_EMIT editingChanged(true);
    m_shared.status.ShowStatus(modSBFunc::Edit);
}

void frmDoc::endEdit()
{
    if (!m_grid->EditMode())
        return;
    m_grid->setEditMode(false);
    finishEdit(RunningEdit::End::Closed, m_grid->Row(), m_grid->Col());
}

void frmDoc::finishEdit(RunningEdit::End how, int row, int col)
{
    m_shared.status.ShowStatus(modSBFunc::Ready);
    if (m_edit.state() != RunningEdit::State::Browsing)
        Q_EMIT editingChanged(false);
    if (m_edit.end(how, row, col, m_grid->TextMatrix(row, col)))
        setDirty(true);
    if (how != RunningEdit::End::Closed)
        makeRoomFor(row, col);
}

void frmDoc::makeRoomFor(int row, int col)
{
    growRow(row, col);
    if (row >= m_grid->Rows() - 1)
        m_grid->AddItem(QString::number(m_grid->Rows()));
}

void frmDoc::growRow(int row, int col)
{
    const QString &text = m_grid->word(row, col);
    if (m_grid->letterWidths().surelyFits(text, m_grid->ColWidth(col) / Twips::perPixelX()))
        return;
    const QFontMetricsF metrics(m_grid->Font());
    const int width = int(std::lround(metrics.horizontalAdvance(text) * Twips::perPixelX()));
    const int height = int(std::lround(metrics.height() * Twips::perPixelY()));
    const int present = m_grid->RowHeight(row);
    const int grown = GridRules::grownRowHeight(width, height, m_grid->ColWidth(col), present);
    if (grown != present)
        m_grid->setRowHeight(row, grown);
}

void frmDoc::onKeyDown(int keyCode, int shift)
{
    m_shiftAlone = shift == ShiftAlone;
    if (keyCode == KeyTab && (shift == 0 || m_shiftAlone)) {
        m_grid->giveFocusBack();
        walk(m_shiftAlone);
    } else if (shift == 0 && !m_grid->EditMode()) {
        onKeyWhileBrowsing(keyCode);
    }
}

void frmDoc::onKeyWhileBrowsing(int keyCode)
{
    if (keyCode == KeyDelete)
        Q_EMIT clearRequested();
    else if (keyCode == KeyF2)
        m_grid->editAtEnd();
}

void frmDoc::onKeyPress(int keyAscii)
{
    if (keyAscii == KeyEnter)
        walk(m_shiftAlone);
    else if (keyAscii == KeyEscape)
        finishEdit(RunningEdit::End::Escaped, m_grid->Row(), m_grid->Col());
    if (keyAscii > KeyEscape) {
        m_edit.type(m_grid->Text());
        showEditStatus(); // which the undo caption has overwritten
    }
}

void frmDoc::walk(bool backwards)
{
    const int rows = m_grid->Rows();
    const auto step = backwards ? GridRules::afterShiftEnter : GridRules::afterEnter;
    const GridRules::Cell cell = step(m_grid->Row(), m_grid->Col(), rows);
    m_grid->setRow(cell.row);
    m_grid->setCol(cell.col);
    if (cell.wrapped)
        m_grid->setTopRow(cell.row);
    refreshCellReference();
}

void frmDoc::onRowColChange()
{
    if (!m_grid->RowIsVisible(m_grid->Row()))
        m_grid->showCell(m_grid->Row(), m_grid->Col());
    refreshCellReference();
}

void frmDoc::showEditStatus()
{
    m_shared.status.ShowStatus(m_grid->EditMode() ? modSBFunc::Edit : modSBFunc::Ready);
}

void frmDoc::zoomBy(int steps)
{
    zoomTo(FlexGridZoom::stepped(m_grid->Zoom(), steps));
}

void frmDoc::zoomTo(int percent)
{
    m_grid->setZoom(percent);
    m_shared.settings.setGridZoom(m_grid->Zoom());
    showZoom();
}

void frmDoc::showZoom()
{
    if (m_shared.status.isHeldBack())
        return;
    m_shared.status.showText(resText(ZoomText).arg(m_grid->Zoom()));
    m_zoomNote.start(ZoomNoteTime);
}

void frmDoc::forgetZoom()
{
    if (m_shared.status.text(0) == resText(ZoomText).arg(m_grid->Zoom()))
        showEditStatus();
}

void frmDoc::onMouseMove()
{
    if (!m_zoomNote.isActive()) // a wheel that is turned moves the mouse
        showEditStatus();
    m_grid->setMousePointer(OwnCursor);
}

void frmDoc::onMouseUp(int button, float x, float y)
{
    if (button != RightButton)
        return;
    const QPoint position(Twips::toPixelsX(int(x)), Twips::toPixelsY(int(y)));
    Q_EMIT menuRequested(m_grid->mapToGlobal(position));
}
