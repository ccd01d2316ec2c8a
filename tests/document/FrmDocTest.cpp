#include "support/OpenFiles.h"

#include "document/ctlGridEdit.h"
#include "widgets/grid/FlexGridView.h"

/// One document, shown, with the focus in its grid and a word in the first row.
struct FrmDocTest : ::testing::Test, OpenFiles
{
    frmDoc &document = *newDocument();
    ctlGrid &grid = *document.Rutor();
    QList<bool> editing;

    FrmDocTest()
    {
        QObject::connect(&document, &frmDoc::editingChanged, &document, [this](bool on) { editing.append(on); });
        QApplication::setActiveWindow(&document);
        QCoreApplication::processEvents();
        grid.setTextMatrix(1, 1, "house");
        grid.Select(1, 1, 1, 1);
    }

    /// Sends keys to whatever has the focus, as a keyboard does.
    void type(const QString &text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    std::pair<int, int> cell() const { return {grid.Row(), grid.Col()}; }
};

TEST_F(FrmDocTest, NewDocumentsAreSetUpFromTheSettings)
{
    QFont font("Liberation Serif", 14);
    font.setBold(true);
    settings.setFontName(font.family());
    settings.setFontSize(14);
    settings.setFontBold(true);
    settings.setFontColor(0x0000FF);
    const ctlGrid &fresh = *newDocument()->Rutor();
    EXPECT_EQ(fresh.Font(), font);
    EXPECT_EQ(fresh.ForeColor(), 0x0000FF);
    EXPECT_EQ(fresh.Rows(), 101);
    EXPECT_EQ(fresh.TextMatrix(0, 1) + fresh.TextMatrix(100, 0), resText(501) + "100");
}

TEST_F(FrmDocTest, TypingCommitsWithEnterAndMovesOn)
{
    type("b");
    EXPECT_EQ(undo.kind(), UndoKind::Typing);
    EXPECT_EQ(undo.entryText, "house");
    EXPECT_EQ(status.text(0), resText(503));
    type("arn");
    press(Qt::Key_Return);
    EXPECT_EQ(grid.TextMatrix(1, 1), "barn");
    EXPECT_TRUE(document.Dirty());
    EXPECT_EQ(undo.kind(), UndoKind::Entry);
    EXPECT_EQ(status.text(0) + status.text(1), resText(506) + " B1");
    EXPECT_EQ(editing, (QList<bool>{true, false}));
    press(Qt::Key_Return, Qt::ShiftModifier);
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(cell(), std::pair(100, 2)) << "round to the last row";
    EXPECT_TRUE(grid.RowIsVisible(100));
    press(Qt::Key_Return);
    EXPECT_EQ(cell(), std::pair(1, 1));
}

TEST_F(FrmDocTest, EscapeLeavesTheCellAsItWas)
{
    type("zzz");
    press(Qt::Key_Escape, Qt::ControlModifier);
    EXPECT_TRUE(grid.EditMode()) << "no character, so nobody would learn of the end";
    press(Qt::Key_Escape);
    EXPECT_EQ(grid.TextMatrix(1, 1) + status.text(0), "house" + resText(506));
}

TEST_F(FrmDocTest, TabCommitsAndGoesWhereEnterGoes)
{
    type("barn");
    press(Qt::Key_Tab);
    type("x");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(grid.TextMatrix(1, 1) + grid.TextMatrix(1, 2), "barnx");
    EXPECT_EQ(undo.kind(), UndoKind::Entry);
    EXPECT_EQ(cell(), std::pair(1, 1));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(cell(), std::pair(100, 2));
    flags.FindMode = true; // a search holds the commit by the focus back
    type("last");
    press(Qt::Key_Tab);
    EXPECT_EQ(cell(), std::pair(101, 1)) << "the row that the entry has added";
    press(Qt::Key_Tab, Qt::AltModifier);
    EXPECT_EQ(cell(), std::pair(101, 1));
}

TEST_F(FrmDocTest, KeysOfTheGridClearAndEditAtTheEnd)
{
    QSignalSpy clears(&document, &frmDoc::clearRequested);
    press(Qt::Key_F2);
    EXPECT_EQ(grid.EditText(), "house");
    press(Qt::Key_Delete);
    EXPECT_EQ(clears.count(), 0) << "it is the edit box's";
    type("s");
    press(Qt::Key_Return);
    EXPECT_EQ(grid.TextMatrix(1, 1), "houses");
    press(Qt::Key_Delete, Qt::ShiftModifier);
    press(Qt::Key_Delete);
    EXPECT_EQ(clears.count(), 1);
}

TEST_F(FrmDocTest, ALongEntryInTheLastRowMakesItTallerAndAddsAnother)
{
    grid.setColWidth(2, 1000);
    grid.Select(100, 2, 100, 2);
    type("a rather long expression that needs several lines");
    press(Qt::Key_Return);
    EXPECT_GT(grid.RowHeight(100), 285 * 2);
    EXPECT_EQ(grid.Rows(), 102);
}

TEST_F(FrmDocTest, ActivationEndsTheUndoRecordAndShowsTheStatusTexts)
{
    undo.setKind(UndoKind::Sort, &document);
    frmDoc &other = *documents.create();
    other.Rutor()->setTextMatrix(0, 1, "English");
    other.Rutor()->Select(2, 1, 3, 2);
    documents.setActive(&other);
    EXPECT_EQ(undo.kind(), UndoKind::None);
    EXPECT_FALSE(undo.belongsTo(&document));
    EXPECT_EQ(status.text(1), " A2:B3");
    EXPECT_TRUE(status.text(2).startsWith("English -> "));
}

TEST_F(FrmDocTest, ZoomIsAViewThatTellsItsSizeForAMoment)
{
    grid.resize(600, 400);
    const std::pair<int, int> sizes(grid.ColWidth(1), grid.RowHeight(1));
    const auto grow = [this](int zoom) {
        document.zoomTo(zoom);
        grid.setRowHeight(2, -1);
        grid.Select(2, 1, 2, 1);
        press(Qt::Key_F2);
        EXPECT_EQ(grid.hwndText()->height(), grid.hwndGrid()->cellRect(2, 1).height() - 1);
        EXPECT_EQ(grid.hwndText()->font(), grid.shownFont());
        grid.hwndText()->setText(QString("long word ").repeated(20));
        press(Qt::Key_Return);
        return grid.RowHeight(2);
    };
    const int grown = grow(300);
    EXPECT_EQ(grow(100), grown) << "the row takes the same height";
    document.setDirty(false);
    document.zoomBy(1);
    EXPECT_FALSE(document.Dirty());
    type("barn");
    document.zoomBy(1);
    EXPECT_EQ(grid.EditText(), "barn");
    EXPECT_EQ(status.text(0), resText(14958).arg(125));
    EXPECT_TRUE(QTest::qWaitFor([this] { return status.text(0) == resText(503); }));
    EXPECT_EQ(std::pair(grid.ColWidth(1), grid.RowHeight(1)), sizes);
    EXPECT_EQ(newDocument()->Rutor()->Zoom(), 125) << "new documents begin with it";
}
