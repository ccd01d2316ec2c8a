#include "document/DocumentList.h"
#include "document/ctlGrid.h"
#include "platform/RegistryTree.h"
#include "resources/StringTable.h"
#include "services/modSBFunc.h"
#include "services/rules/clsAppProperties.h"

namespace {

/// One document, shown, with the focus in its grid and its words in the first rows.
struct FrmDocTest : ::testing::Test
{
    RegistryTree store;
    clsAppProperties settings{store, QStringLiteral("/usr/bin/glosaria")};
    ProgramFlags flags;
    UndoRecord undo;
    modSBFunc status{flags};
    DocumentList documents{{flags, undo, status, settings}};
    frmDoc *document = nullptr;
    ctlGrid *grid = nullptr;
    QList<bool> editing;

    FrmDocTest()
    {
        document = documents.create();
        document->setCaption(documents.nextUntitledCaption());
        grid = document->Rutor();
        QObject::connect(document, &frmDoc::editingChanged, document, [this](bool on) { editing.append(on); });
        document->showDocument();
        QApplication::setActiveWindow(document);
        documents.setActive(document);
        QCoreApplication::processEvents();
        grid->setTextMatrix(1, 1, QStringLiteral("house"));
        grid->Select(1, 1, 1, 1);
    }
    ~FrmDocTest() override { delete document; }

    /// Sends keys to whatever has the focus, as a keyboard does.
    void type(const QString &text) { QTest::keyClicks(focus(), text); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(focus(), key, modifiers);
    }
    QWidget *focus() const { return QApplication::focusWidget(); }
    std::pair<int, int> cell() const { return {grid->Row(), grid->Col()}; }
};

} // namespace

TEST_F(FrmDocTest, NewDocumentsAreSetUpFromTheSettings)
{
    settings.setFontName(QStringLiteral("Liberation Serif"));
    settings.setFontSize(14);
    settings.setFontBold(true);
    settings.setFontColor(0x0000FF);
    const std::unique_ptr<frmDoc> other(documents.create());
    const ctlGrid &fresh = *other->Rutor();
    EXPECT_EQ(fresh.Rows(), 101);
    EXPECT_EQ(fresh.ColWidth(0), 340);
    EXPECT_EQ(fresh.ColWidth(1), fresh.ColWidth(2));
    EXPECT_EQ(other->language(1), resText(501));
    EXPECT_EQ(other->language(2), resText(502));
    EXPECT_EQ(fresh.Font().family(), QStringLiteral("Liberation Serif"));
    EXPECT_EQ(fresh.Font().pointSizeF(), 14.0);
    EXPECT_TRUE(fresh.Font().bold());
    EXPECT_EQ(fresh.ForeColor(), 0x0000FF);
    EXPECT_EQ(fresh.TextMatrix(100, 0), QStringLiteral("100"));
    documents.remove(other.get());
}

TEST_F(FrmDocTest, TypingCommitsWithEnterAndMovesOn)
{
    type(QStringLiteral("b"));
    EXPECT_FALSE(flags.gridMode);
    EXPECT_EQ(undo.kind(), UndoKind::Typing);
    EXPECT_EQ(undo.entryText, QStringLiteral("house"));
    EXPECT_EQ(status.text(0), resText(503));
    EXPECT_EQ(editing, QList<bool>{true});

    type(QStringLiteral("arn"));
    press(Qt::Key_Return);
    EXPECT_EQ(grid->TextMatrix(1, 1), QStringLiteral("barn"));
    EXPECT_TRUE(document->Dirty());
    EXPECT_TRUE(flags.gridMode);
    EXPECT_EQ(undo.kind(), UndoKind::Entry);
    EXPECT_EQ(status.text(0), resText(506));
    EXPECT_EQ(editing, (QList<bool>{true, false}));
    EXPECT_EQ(cell(), std::pair(1, 2));
    EXPECT_EQ(status.text(1), QStringLiteral(" B1"));
}

TEST_F(FrmDocTest, EnterWalksThroughTheWordsAndBack)
{
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(cell(), std::pair(2, 1));
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(cell(), std::pair(1, 2));
    press(Qt::Key_Return, Qt::ShiftModifier);
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(cell(), std::pair(100, 2)) << "round to the last row";
    EXPECT_TRUE(grid->RowIsVisible(100));
    press(Qt::Key_Return);
    EXPECT_EQ(cell(), std::pair(1, 1));
    EXPECT_EQ(grid->TopRow(), 1);
}

TEST_F(FrmDocTest, AnEntryInTheLastRowAddsAnother)
{
    grid->Select(100, 2, 100, 2);
    type(QStringLiteral("x"));
    press(Qt::Key_Return);
    EXPECT_EQ(grid->Rows(), 102);
    EXPECT_EQ(grid->TextMatrix(101, 0), QStringLiteral("101"));
}

TEST_F(FrmDocTest, LongTextsMakeTheRowTallerAndShortOnesLeaveIt)
{
    grid->setColWidth(1, 1000);
    type(QStringLiteral("a rather long expression that needs several lines"));
    press(Qt::Key_Return);
    const int grown = grid->RowHeight(1);
    EXPECT_GT(grown, 285 * 2);
    grid->Select(1, 1, 1, 1);
    type(QStringLiteral("x"));
    press(Qt::Key_Return);
    EXPECT_EQ(grid->RowHeight(1), grown);
}

TEST_F(FrmDocTest, EscapeLeavesTheCellAsItWas)
{
    type(QStringLiteral("zzz"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(grid->EditMode());
    EXPECT_EQ(grid->TextMatrix(1, 1), QStringLiteral("house"));
    EXPECT_TRUE(flags.gridMode);
    EXPECT_EQ(status.text(0), resText(506));
}

TEST_F(FrmDocTest, AReplacementKeepsItsUndoKind)
{
    type(QStringLiteral("b"));
    undo.setKind(UndoKind::Replace, document);
    press(Qt::Key_Return);
    EXPECT_EQ(undo.kind(), UndoKind::Replace);
}

TEST_F(FrmDocTest, ActivationEndsTheUndoRecordAndShowsTheStatusTexts)
{
    frmDoc *other = documents.create();
    other->Rutor()->setTextMatrix(0, 1, QStringLiteral("English"));
    other->Rutor()->Select(2, 1, 3, 2);
    undo.setKind(UndoKind::Sort, document);
    documents.setActive(other);
    EXPECT_EQ(undo.kind(), UndoKind::None);
    EXPECT_FALSE(undo.belongsTo(document));
    EXPECT_EQ(status.text(1), QStringLiteral(" A2:B3"));
    EXPECT_TRUE(status.text(2).startsWith(QStringLiteral("English -> ")));
    documents.remove(other);
    delete other;
}
