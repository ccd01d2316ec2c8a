#include "support/OpenFiles.h"

#include "document/EditCommands.h"
#include "document/ctlGridEdit.h"
#include "widgets/grid/FlexGridView.h"

/// One document, shown, with the focus in its grid and a word in the first row.
struct FrmDocTest : ::testing::Test, OpenFiles
{
    frmDoc &document = *newDocument();
    ctlGrid &grid = *document.Rutor();
    QWidget &view = *grid.hwndGrid()->viewport();
    QStringList news;
    QList<int> heights{285}; ///< seen so far

    FrmDocTest()
    {
        QObject::connect(&document, &frmDoc::editingChanged, &document, [this](bool on) { news += on ? "on" : "off"; });
        QObject::connect(&document, &frmDoc::clearRequested, &document, [this] { news += "clear"; });
        QObject::connect(&document, &frmDoc::menuRequested, &document, [this](const QPoint &position) {
            const QPoint at = view.mapFromGlobal(position);
            news += QString("menu %1/%2").arg(at.x()).arg(at.y());
        });
        grid.resize(600, 400);
        QApplication::setActiveWindow(&document);
        QCoreApplication::processEvents();
        grid.setTextMatrix(1, 1, "house");
        grid.Select(1, 1, 1, 1);
    }

    /// The words, the current cell, [the edit box], what undo brings back, whether there are changes, other heights of
    /// rows by number, letters to click, what was told since the last step, and the status bar.
    QString state()
    {
        QStringList parts;
        for (int cell = 0; cell < 2 * grid.Rows() - 2; ++cell)
            parts += grid.TextMatrix(1 + cell / 2, 1 + cell % 2).left(12);
        parts += QString("%1,%2").arg(grid.Row()).arg(grid.Col());
        parts += grid.EditMode() ? '[' + grid.EditText().left(12) + ']' : "";
        if (undo.kind() != UndoKind::None)
            parts += resText(int(undo.kind())).section(' ', 1) + " <" + undo.entryText.left(12) + '>';
        parts += document.Dirty() ? "*" : "";
        for (int row = 0; row < grid.Rows(); ++row) {
            heights += heights.contains(grid.RowHeight(row)) ? QList<int>() : QList<int>{grid.RowHeight(row)};
            parts += QString("height %1").arg(heights.indexOf(grid.RowHeight(row))).remove("height 0");
        }
        parts += grid.Zoom() == 100 ? "" : QString("%1 %").arg(grid.Zoom());
        for (const auto *letter : document.findChildren<QToolButton *>())
            parts += letter->isVisible() ? '(' + letter->text() + ')' : "";
        parts += std::exchange(news, {}) << status.text(0) << status.text(1).trimmed();
        EXPECT_TRUE(grid.RowIsVisible(grid.Row()));
        if (grid.EditMode()) {
            EXPECT_EQ(grid.hwndText()->height(), grid.hwndGrid()->cellRect(grid.Row(), grid.Col()).height() - 1);
            EXPECT_EQ(grid.hwndText()->font(), grid.shownFont());
        }
        parts.removeAll("");
        return parts.join(' ');
    }
};

TEST_F(FrmDocTest, KeysMouseAndLettersTypeCommitGiveUpWalkAndZoom)
{
    QInputMethodEvent composing("ni", {});
    const auto clickLetter = [this](int at) {
        QTest::mouseClick(document.findChildren<QToolButton *>().at(at), Qt::LeftButton);
    };
    const Actions actions = {
        {"search", [&] { flags.FindMode = true; }},
        {"end search", [&] { flags.FindMode = false; }},
        {"row 2", [&] { grid.Select(2, 1, 2, 1); }},
        {"narrow", [&] { grid.setColWidth(2, 1000), grid.Select(100, 2, 100, 2); }},
        {"long", [&] { QTest::keyClicks(QApplication::focusWidget(), QString("long words ").repeated(10)); }},
        {"compose", [&] { QCoreApplication::sendEvent(QApplication::focusWidget(), &composing); }},
        {"store", [&] { document.commitRunningEdit(); }},
        {"undo", [&] { EditCommands(undo, *QGuiApplication::clipboard()).Undo(document); }},
        {"clean", [&] { document.setDirty(false); }},
        {"triple", [&] { document.zoomTo(300), grid.setRowHeight(2, -1); }},
        {"normal", [&] { document.zoomTo(100), grid.setRowHeight(2, -1); }},
        {"larger", [&] { document.zoomBy(1); }},
        {"smaller", [&] { document.zoomBy(-1); }},
        {"move", [&] { QTest::mouseMove(&view, QPoint(60, 200)), QTest::mouseMove(&view, QPoint(65, 200)); }},
        {"tell", [&] { status.showText("told"); }},
        {"wait", [&] { EXPECT_TRUE(QTest::qWaitFor([&] { return !status.text(0).contains('%'); })); }},
        {"click", [&] { QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(30, 50)); }},
        {"right", [&] { QTest::mouseClick(&view, Qt::RightButton, {}, QPoint(30, 50)); }},
        {"letters", [&] { document.showLetters(true); }},
        {"no letters", [&] { document.showLetters(false); }},
        {"accents", [&] { grid.setTextMatrix(3, 1, QString::fromUtf8("\u00e9 \U00010428")); }},
        {"later", [&] { EXPECT_TRUE(QTest::qWaitFor([&] { return document.findChild<QToolButton *>(); })); }},
        {"first letter", [&] { clickLetter(0); }},
        {"second letter", [&] { clickLetter(1); }},
    };
    playFile(
        SOURCE_FOLDER "/tests/document/data/document_keys.txt", [this] { return state(); }, actions);
    EXPECT_EQ(grid.MousePointer(), 99);
    EXPECT_EQ(newDocument()->Rutor()->Zoom(), 110) << "new documents begin with it";
}

TEST_F(FrmDocTest, NewDocumentsAreSetUpFromTheSettings)
{
    settings.setFontName("Liberation Serif");
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
    EXPECT_EQ(documents.active()->layout()->contentsMargins(), QMargins());
}

TEST_F(FrmDocTest, ActivationEndsTheUndoRecordAndShowsTheStatusTexts)
{
    undo.setKind(UndoKind::Sort, &document);
    frmDoc &other = *documents.create();
    other.Rutor()->setTextMatrix(0, 1, "English");
    other.Rutor()->Select(3, 1, 2, 1);
    documents.setActive(&other);
    EXPECT_TRUE(undo.kind() == UndoKind::None && !undo.belongsTo(&document));
    other.setQuizModeNote("(x)");
    EXPECT_EQ(status.text(1) + '|' + status.text(2), " A2:A3|English -> Language 2 In Order (x)");
}
