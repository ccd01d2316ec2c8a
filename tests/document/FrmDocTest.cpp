#include "support/OpenFiles.h"

#include "document/EditCommands.h"
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
};

TEST_F(FrmDocTest, WhatIsComposedIsSavedAndUndone)
{
    grid.Select(2, 1, 2, 1);
    QInputMethodEvent event("ni", {});
    QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    document.commitRunningEdit();
    EXPECT_EQ(grid.TextMatrix(2, 1), "ni");
    EXPECT_TRUE(grid.EditMode() && document.Dirty());
    QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    EditCommands(undo, *QGuiApplication::clipboard()).Undo(document);
    EXPECT_EQ(grid.EditText(), "") << "all that was typed, as ever";
}

TEST_F(FrmDocTest, NewDocumentsAreSetUpFromTheSettings)
{
    const QFont font("Liberation Serif", 14, QFont::Bold);
    settings.setFontName(font.family());
    settings.setFontSize(14);
    settings.setFontBold(true);
    settings.setFontColor(0x0000FF);
    const ctlGrid &fresh = *newDocument()->Rutor();
    QString found;
    for (const auto &[name, value] : fresh.saveProperties().asKeyValueRange())
        found += name + ": " + value.toString() + '\n';
    for (int col = 0; col < 3; ++col)
        found +=
            QString("%1 %2 %3\n").arg(fresh.TextMatrix(0, col)).arg(fresh.ColAlignment(col)).arg(fresh.ColWidth(col));
    EXPECT_EQ(found.toStdString(), readFile(SOURCE_FOLDER "/tests/document/data/new_grid.txt").toStdString());
    EXPECT_EQ(grid.geometry(), document.rect());
}

TEST_F(FrmDocTest, KeysTypeCommitGiveUpAndWalk)
{
    const QSignalSpy clears(&document, &frmDoc::clearRequested);
    /// The words, the current cell, [the edit box], what undo brings back, whether there are changes, and other news.
    const auto state = [&] {
        QStringList parts;
        for (int cell = 0; cell < 2 * grid.Rows() - 2; ++cell)
            parts += grid.TextMatrix(1 + cell / 2, 1 + cell % 2);
        parts += QString("%1,%2").arg(grid.Row()).arg(grid.Col());
        parts += grid.EditMode() ? '[' + grid.EditText() + ']' : "";
        if (undo.kind() != UndoKind::None)
            parts += (undo.kind() == UndoKind::Typing ? "typing <" : "entry <") + undo.entryText + '>';
        EXPECT_EQ(status.text(0), resText(grid.EditMode() ? 503 : 506));
        EXPECT_TRUE(grid.RowIsVisible(grid.Row()));
        parts.removeAll("");
        return parts.join(' ') + (document.Dirty() ? " *" : "") + QString(" clear").repeated(int(clears.count()));
    };
    playFile(SOURCE_FOLDER "/tests/document/data/document_keys.txt", state);
    EXPECT_EQ(status.text(1), " B1");
    EXPECT_EQ(editing, (QList<bool>{true, false, true, false, true, false, true, false, true, false}));
    flags.FindMode = true; // a search holds the commit by the focus back
    grid.setColWidth(2, 1000);
    grid.Select(100, 2, 100, 2);
    type("a rather long expression that needs several lines");
    for (const auto modifiers : {Qt::NoModifier, Qt::AltModifier}) {
        press(Qt::Key_Tab, modifiers);
        EXPECT_EQ(std::pair(grid.Row(), grid.Col()), std::pair(101, 1)) << "the row that the entry has added";
    }
    EXPECT_GT(grid.RowHeight(100), 285 * 2);
}

TEST_F(FrmDocTest, ActivationEndsTheUndoRecordAndShowsTheStatusTexts)
{
    undo.setKind(UndoKind::Sort, &document);
    frmDoc &other = *documents.create();
    other.Rutor()->setTextMatrix(0, 1, "English");
    other.Rutor()->Select(3, 1, 2, 1);
    documents.setActive(&other);
    EXPECT_EQ(undo.kind(), UndoKind::None);
    EXPECT_FALSE(undo.belongsTo(&document));
    EXPECT_EQ(status.text(1), " A2:A3");
    const QString mode = "English -> " + resText(502) + ' ' + resText(300);
    EXPECT_EQ(status.text(2), mode);
    other.setQuizModeNote("(x)");
    EXPECT_EQ(status.text(2), mode + " (x)");
    other.Rutor()->setRow(60);
    EXPECT_TRUE(other.Rutor()->RowIsVisible(60));
}

TEST_F(FrmDocTest, ARightClickAsksForTheMenuWhereItIs)
{
    const QSignalSpy asked(&document, &frmDoc::menuRequested);
    for (const auto button : {Qt::LeftButton, Qt::RightButton})
        QTest::mouseClick(grid.hwndGrid()->viewport(), button, {}, QPoint(30, 50));
    status.showText("x");
    for (const int x : {32, 35})
        QTest::mouseMove(grid.hwndGrid()->viewport(), QPoint(x, 50));
    EXPECT_EQ(status.text(0), resText(506));
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0][0].toPoint(), grid.hwndGrid()->viewport()->mapToGlobal(QPoint(30, 50)));
}

TEST_F(FrmDocTest, ZoomIsAViewThatTellsItsSizeForAMoment)
{
    grid.resize(600, 400);
    const std::pair<int, int> sizes(grid.ColWidth(1), grid.RowHeight(1));
    QList<int> grown; // which is the same however the words are shown
    for (const int zoom : {300, 100}) {
        document.zoomTo(zoom);
        grid.setRowHeight(2, -1);
        grid.Select(2, 1, 2, 1);
        press(Qt::Key_F2);
        EXPECT_EQ(grid.hwndText()->height(), grid.hwndGrid()->cellRect(2, 1).height() - 1);
        EXPECT_EQ(grid.hwndText()->font(), grid.shownFont());
        grid.hwndText()->setText(QString("long word ").repeated(20));
        press(Qt::Key_Return);
        grown << grid.RowHeight(2);
    }
    EXPECT_EQ(grown[0], grown[1]);
    document.setDirty(false);
    document.zoomBy(1);
    EXPECT_FALSE(document.Dirty());
    type("barn");
    document.zoomBy(1);
    EXPECT_EQ(grid.EditText(), "barn");
    const auto moveTo = [this](int x) { QTest::mouseMove(grid.hwndGrid()->viewport(), QPoint(x, 50)); };
    moveTo(30);
    EXPECT_EQ(status.text(0), resText(14958).arg(125)) << "a wheel moves the mouse";
    EXPECT_TRUE(QTest::qWaitFor([this] { return status.text(0) == resText(503); }));
    status.showText("x");
    moveTo(35);
    EXPECT_EQ(status.text(0), resText(503));
    EXPECT_EQ(grid.MousePointer(), 99);
    EXPECT_EQ(std::pair(grid.ColWidth(1), grid.RowHeight(1)), sizes);
    flags.FindMode = true; // which holds status texts back
    document.zoomBy(0);
    EXPECT_EQ(status.text(0), resText(503));
    EXPECT_EQ(newDocument()->Rutor()->Zoom(), 125) << "new documents begin with it";
}
