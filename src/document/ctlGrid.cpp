#include "document/ctlGrid.h"

#include "document/ctlGridEdit.h"
#include "document/rules/GridRules.h"
#include "document/rules/Vocabulary.h"
#include "platform/Twips.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"
#include "services/desktop/Contrast.h"
#include "services/rules/ProgramFlags.h"
#include "widgets/grid/FlexGridCellText.h"
#include "widgets/grid/FlexGridColours.h"
#include "widgets/grid/FlexGridView.h"

#include <QFontMetricsF>
#include <QInputMethodEvent>

#include <cmath>

namespace {

constexpr int EditBoxName = 12800;
constexpr int GridName = 12801;
constexpr int WhatsThisId = 20042;
constexpr int Enter = 13;
constexpr int Escape = 27;
constexpr int Space = 32;
constexpr int UpArrow = 38;
constexpr int DownArrow = 40;
constexpr int ControlOrAlt = 2 | 4;
constexpr int RowNumberMargin = 6;   // pixels beside the last row's number
constexpr double EditBoxTint = 0.12; // the share of the highlight colour in the ground of a cell that is edited
constexpr int EditBoxInset = 10;     // twips that the edit box is narrower and lower than its cell

QString characterOf(int keyAscii)
{
    if (keyAscii < 0)
        return QChar(char16_t(keyAscii & 0xFFFF));
    const auto character = char32_t(keyAscii);
    return QString::fromUcs4(&character, 1);
}

LetterWidths letterWidthsIn(const QFont &font)
{
    return LetterWidths([font](const QString &text) { return QFontMetricsF(font).horizontalAdvance(text); });
}

} // namespace

ctlGrid::ctlGrid(const ProgramFlags *flags, QWidget *parent)
    : FlexGrid(parent)
    , m_flags(flags)
    , m_text1(new ctlGridEdit(this))
    , m_letterWidths(letterWidthsIn(Font()))
{
    setAccessibleName(resText(GridName));
    FormTexts::setWhatsThis(this, WhatsThisId);
    m_text1->hide();
    connectEditBox();
}

void ctlGrid::connectEditBox()
{
    connect(m_text1, &ctlGridEdit::keyPressed, this, &ctlGrid::editKeyPressed);
    connect(m_text1, &ctlGridEdit::keyReleased, this, &ctlGrid::KeyUp);
    connect(m_text1, &ctlGridEdit::clicked, this, &ctlGrid::Click);
    connect(m_text1, &ctlGridEdit::characterTyped, this, [this](int &character) {
        const bool closes = character == Enter || character == Escape;
        Q_EMIT KeyPress(character);
        if (closes)
            character = 0;
    });
    connect(m_text1, &QLineEdit::textEdited, this, [this] { showCell(Row(), Col()); });
}

void ctlGrid::GridEdit(int KeyAscii)
{
    if (Row() < 0 || Col() < 0)
        return;
    finishComposing();
    if (EditMode() && EditText() != Text())
        commit();
    if (KeyAscii > Space || KeyAscii < 0)
        beginEdit(characterOf(KeyAscii));
    else
        beginEdit(Text());
}

/// The focus comes before the text: a screen reader that has heard of the text's caret does not read the box again.
bool ctlGrid::beginEdit(const QString &text)
{
    if (!openEditBox())
        return false;
    m_text1->setFocus();
    m_text1->begin(text);
    return true;
}

bool ctlGrid::openEditBox()
{
    int row = Row();
    int col = Col();
    bool cancel = false;
    Q_EMIT BeforeEdit(row, col, cancel);
    if (cancel)
        return false;
    dressEditBox();
    showCell(Row(), Col());
    m_text1->show();
    RefreshTextPos();
    return true;
}

void ctlGrid::dressEditBox()
{
    m_text1->setFont(shownFont());
    QPalette colours = palette();
    const QColor cell = FlexGridColours::ground(BackColor(), colours);
    const QColor ground = Contrast::mixed(cell, colours.highlight().color(), EditBoxTint);
    colours.setColor(QPalette::Base, ground);
    colours.setColor(QPalette::Text, FlexGridColours::text(ForeColor(), palette(), ground));
    m_text1->setPalette(colours);
    m_text1->setAccessibleName(resText(EditBoxName).arg(QChar(u'A' + Col() - 1)).arg(Row()));
}

bool ctlGrid::EditMode() const
{
    return !m_text1->isHidden();
}

void ctlGrid::setEditMode(bool edit)
{
    finishComposing();
    if (edit)
        GridEdit(Space);
    else if (EditMode() && EditText() != Text())
        commit();
    else
        closeEditBox();
}

void ctlGrid::editAtEnd()
{
    GridEdit(Space);
    m_text1->end(false);
}

QString ctlGrid::EditText() const
{
    return EditMode() ? m_text1->text() : QString();
}

void ctlGrid::SelectEditText(int start, int length)
{
    if (EditMode())
        m_text1->setSelection(start, length);
}

QString ctlGrid::SelText() const
{
    return EditMode() ? m_text1->selectedText() : QString();
}

void ctlGrid::setSelText(const QString &text)
{
    if (EditMode())
        m_text1->insert(text);
}

void ctlGrid::RefreshTextPos()
{
    if (!EditMode())
        return;
    const QPoint origin = view().viewport()->pos();
    const QRect cell = view().cellRect(Row(), Col()).translated(origin);
    QRect box(cell.topLeft(), cell.size() - QSize(Twips::toPixelsX(EditBoxInset), Twips::toPixelsY(EditBoxInset)));
    if (RightToLeft())
        box.moveRight(cell.right());
    const QRect shown = box & view().cellArea().translated(origin);
    if (shown.isEmpty())
        box.moveBottomRight(QPoint(-1, -1)); // scrolled away, still editing
    else if (shown != box)
        m_text1->setMask(shown.translated(-box.topLeft()));
    if (shown == box)
        m_text1->clearMask();
    m_text1->setGeometry(box);
}

void ctlGrid::AutoSetup(const QString &fontName, double fontSize, int rows, int cols, int fixedRows, int fixedCols,
                        const QString &formatString)
{
    setEditMode(false);
    setRedraw(false);
    Clear();
    setFormatString(QString());
    setGridFont(VocabularyFont{fontName, fontSize}.toFont());
    setFixedRows(0);
    setFixedCols(0);
    setRows(rows);
    setCols(cols);
    setFixedRows(fixedRows);
    setFixedCols(fixedCols);
    setFormatString(formatString);
    m_text1->clear();
    setRedraw(true);
    Refresh();
}

void ctlGrid::setGridFont(const QFont &font)
{
    FlexGrid::setGridFont(font);
    m_text1->setFont(shownFont());
    m_letterWidths = letterWidthsIn(font);
    const int lineHeight = Twips::fromPixelsY(int(std::ceil(QFontMetricsF(font).height())));
    setDefaultRowHeight(GridRules::defaultRowHeight(lineHeight));
}

void ctlGrid::setZoom(int percent)
{
    FlexGrid::setZoom(percent);
    m_text1->setFont(shownFont());
    m_text1->setZoom(state().zoom.factor());
    RefreshTextPos();
}

void ctlGrid::makeRoom()
{
    setRedraw(false);
    makeRoomForRowNumbers();
    for (int row = 0; row < Rows(); ++row) {
        const int needed = fittingRowHeight(row);
        if (needed > RowHeight(row))
            setRowHeight(row, needed);
    }
    setRedraw(true);
}

void ctlGrid::makeRoomForRowNumbers()
{
    const double width = QFontMetricsF(Font(), this).horizontalAdvance(TextMatrix(Rows() - 1, 0));
    setColWidth(0, std::max(ColWidth(0), Twips::fromPixelsX(int(std::ceil(width)) + RowNumberMargin)));
}

void ctlGrid::growCutRows()
{
    for (int row = FixedRows(); row < Rows(); ++row) {
        if (surelyShows(row))
            continue;
        const int needed = fittingRowHeight(row);
        if (needed > RowHeight(row))
            setRowHeight(row, needed);
    }
}

/// Whether each word of a row certainly fits on one line.
bool ctlGrid::surelyShows(int row)
{
    for (int col = FixedCols(); col < Cols(); ++col) {
        const int room = Twips::toPixelsX(ColWidth(col)) - 2 * FlexGridCellText::Margin - GridLineWidth();
        if (!m_letterWidths.surelyFits(word(row, col), room))
            return false;
    }
    return true;
}

void ctlGrid::finishComposing()
{
    if (EditMode())
        m_text1->finishComposing();
}

void ctlGrid::commit()
{
    if (!EditMode())
        return;
    finishComposing();
    int row = Row();
    int col = Col();
    setTextMatrix(row, col, EditText());
    closeEditBox();
    const QString stored = TextMatrix(row, col);
    QString text = stored;
    Q_EMIT AfterEdit(row, col, text);
    if (text != stored)
        setTextMatrix(row, col, text);
}

void ctlGrid::closeEditBox()
{
    const bool hadFocus = window()->focusWidget() == m_text1;
    view().composeIn(nullptr);
    m_text1->hide();
    if (hadFocus)
        view().setFocus();
}

void ctlGrid::giveFocusBack()
{
    view().setFocus();
    commit(); // when the focus event has not done so: the window is inactive, or a search holds it back
}

void ctlGrid::leavingCell()
{
    commit();
}

void ctlGrid::gridFocused()
{
    if (!m_flags->searching())
        commit();
}

void ctlGrid::editKeyPressed(int keyCode, int shift, bool &taken)
{
    taken = true;
    if (keyCode == Escape && !(shift & ControlOrAlt)) // with these it types no character
        closeEditBox();
    else if (keyCode == Enter)
        giveFocusBack();
    else if (keyCode == DownArrow || keyCode == UpArrow)
        commitAndMove(keyCode == DownArrow ? 1 : -1);
    else
        taken = false;
    Q_EMIT KeyDown(keyCode, shift);
}

void ctlGrid::commitAndMove(int step)
{
    giveFocusBack();
    // What comes from outside, files that are handed over among it, waits until the move is complete.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
    const int row = Row() + step;
    if (row >= FixedRows() && row < Rows()) {
        setRow(row);
        showCell(Row(), Col());
    }
}

void ctlGrid::characterTyped(int character)
{
    if (character == Enter)
        return;
    if (EditMode()) {
        m_text1->insert(characterOf(character));
        m_text1->setFocus();
    } else {
        GridEdit(character);
    }
}

void ctlGrid::inputMethodUsed(QInputMethodEvent *event)
{
    for (const char32_t character : event->commitString().toUcs4())
        typeCharacter(int(character));
    if (event->preeditString().isEmpty())
        return;
    if (!EditMode()) {
        if (Row() < 0 || Col() < 0 || !openEditBox())
            return;
        m_text1->begin(QString());
    }
    QInputMethodEvent composing(event->preeditString(), event->attributes());
    QCoreApplication::sendEvent(m_text1, &composing);
    view().composeIn(m_text1);
}

void ctlGrid::cellDoubleClicked()
{
    GridEdit(Space);
}

void ctlGrid::laidOut()
{
    RefreshTextPos();
}
