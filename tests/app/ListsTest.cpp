#include "MainWindowFixture.h"

#include "widgets/LinkList.h"

namespace {

struct ListsTest : MainWindowFixture
{
    /// Runs a command, or follows the link of the start page with that text.
    void begin(const QString &command)
    {
        for (LinkButton *link : window->findChildren<LinkButton *>()) {
            if (link->text() == command)
                return QTest::mouseClick(link, Qt::LeftButton);
        }
        window->DoMenuClick(command);
    }
    /// Begins, changes the preview and accepts it.
    void accept(const QString &command, const std::function<void(QDialog &)> &change = {})
    {
        QCoreApplication::processEvents(); // the page shows
        QTimer::singleShot(0, window.get(), [&] {
            auto &dialog = dynamic_cast<QDialog &>(*QApplication::activeModalWidget());
            if (change)
                change(dialog);
            EXPECT_TRUE(child<QPushButton>(dialog, "btnOK")->isEnabled());
            child<QPushButton>(dialog, "btnOK")->click();
        });
        begin(command);
    }
    template <typename Control> static Control *child(QDialog &dialog, const char *name)
    {
        return dialog.findChild<Control *>(name);
    }
    static QString previewed(QDialog &dialog) { return child<FlexGrid>(dialog, "grdPreview")->TextMatrix(1, 1); }
    /// The words of the active document, "a|b" a row, the names first.
    QStringList words()
    {
        const ctlGrid &grid = *documents().active()->Rutor();
        QStringList rows;
        for (int row = 0; row < grid.Rows(); ++row)
            rows += grid.TextMatrix(row, 1) + '|' + grid.TextMatrix(row, 2);
        return rows;
    }
    void offer(const QByteArray &bytes) { prompts.openPath = writeFile(folder.filePath("list"), bytes); }
};

} // namespace

TEST_F(ListsTest, AListIsReadAsThePreviewShowsIt)
{
    offer("x;English;German;note\n1;house;Haus;\n2;;;n\n3;a,b;c,d;\n");
    accept("Import a list...", [](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Import - list");
        EXPECT_EQ(previewed(dialog), "x");
        EXPECT_FALSE(child<QRadioButton>(dialog, "optThis")->isEnabled());
        child<QComboBox>(dialog, "cboFirst")->setCurrentIndex(1);
        child<QComboBox>(dialog, "cboSecond")->setCurrentIndex(2);
        child<QCheckBox>(dialog, "chkNames")->setChecked(true);
        EXPECT_EQ(child<QComboBox>(dialog, "cboFirst")->currentText(), "Column 2: English");
        EXPECT_EQ(child<QLabel>(dialog, "lblDropped")->text(),
                  "2 rows arrive.\nDropped: 2 other columns, 1 row without a word.");
        child<QPushButton>(dialog, "btnSwap")->click();
        EXPECT_EQ(previewed(dialog), "Haus");
        child<QComboBox>(dialog, "cboSeparator")->setCurrentText("Comma");
        child<QComboBox>(dialog, "cboSeparator")->setCurrentText(";");
        EXPECT_EQ(child<QComboBox>(dialog, "cboFirst")->currentIndex(), 0) << "other columns, another proposal";
        child<QCheckBox>(dialog, "chkNames")->setChecked(true);
        child<QComboBox>(dialog, "cboFirst")->setCurrentIndex(2);
        child<QComboBox>(dialog, "cboSecond")->setCurrentIndex(1);
    });
    EXPECT_EQ(words(), QStringList({"German|English", "Haus|house", "c,d|a,b", "|"}));
    EXPECT_EQ(documents().active()->Caption(), "Untitled 1");
    EXPECT_TRUE(documents().active()->Dirty());
    EXPECT_EQ(status(0), "2 rows imported");
}

TEST_F(ListsTest, RowsGoInAboveTheCurrentOneAndOutAgain)
{
    newDocument()->Rutor()->setWords({"A", "1", "2", ""}, {"B", "3", "4", ""}, {});
    documents().active()->select({2, 2, 2, 2});
    const QStringList before = words();
    QGuiApplication::clipboard()->setText("house - Haus\ntree - Baum\n");
    accept("mnuEditPasteList", [](QDialog &dialog) {
        EXPECT_FALSE(child<QComboBox>(dialog, "cboEncoding")->isVisible());
        child<QRadioButton>(dialog, "optThis")->click();
    });
    EXPECT_EQ(words(), QStringList({"A|B", "1|3", "house|Haus", "tree|Baum", "2|4", "|"}));
    EXPECT_EQ(window->UndoAction(), "&Undo Import");
    EXPECT_EQ(status(0), "2 rows imported");
    window->DoMenuClick("mnuEditUndo");
    EXPECT_EQ(words(), before);
    EXPECT_EQ(documents().active()->selection(), (GridSelection{2, 2, 2, 2}));
}

TEST_F(ListsTest, WhatCannotBeReadOrWrittenIsTold)
{
    offer("PK\x03\x04");
    QCoreApplication::processEvents();
    begin("Import a list...");
    EXPECT_EQ(alert.onlyPrompt(), "The file list is damaged.");
    EXPECT_TRUE(documents().open().empty());
    newDocument()->Rutor()->setWords({"A", "1,2", ""}, {"B", "3", ""}, {});
    prompts.savePath = folder.filePath("none/a.csv");
    window->DoMenuClick("mnuFileExport");
    EXPECT_EQ(alert.shown.size(), 2u);
    prompts.savePath = folder.filePath("a.csv");
    window->DoMenuClick("mnuFileExport");
    EXPECT_EQ(readFile(prompts.savePath), "A,B\r\n\"1,2\",3\r\n");
    EXPECT_EQ(status(0), "1 row exported; font, row heights and column widths stay in the vocabulary");
    EXPECT_TRUE(documents().active()->DocName().isEmpty());
}
