#include "MainWindowFixture.h"

#include "widgets/LinkList.h"

namespace {

struct ListsTest : MainWindowFixture
{
    static QString preview(QDialog &dialog) { return words(*dialog.findChild<FlexGrid *>("grdPreview")); }
    /// Chooses in one part of the dialog after the other: "name=entry" in a box, "name" clicks.
    static void choose(QDialog &dialog, const QStringList &choices)
    {
        for (const QString &choice : choices) {
            if (auto *box = dialog.findChild<QComboBox *>(choice.section('=', 0, 0)))
                box->setCurrentText(choice.section('=', 1));
            else
                dialog.findChild<QAbstractButton *>(choice)->click();
        }
    }
};

const QString Data = SOURCE_FOLDER "/tests/exchange/data/";

} // namespace

TEST_F(ListsTest, EachKindShowsTheChoicesThatItHas)
{
    const QString vocabulary = writeVocabulary("v.gla");
    const QString paths[] = {vocabulary, writeFile(folder.filePath("t"), "a\tb\nc\t<i>d</i>\n"),
                             Data + "libreoffice.ods", Data + "new.apkg"};
    QString found;
    window->OpenRequestedFile(vocabulary);
    for (const QString &path : paths) {
        prompts.openPath = path;
        EXPECT_TRUE(inDialog("mnuFileImport", [&](QDialog &dialog) {
            EXPECT_EQ(status(0), resText(504));
            found += shown(dialog) + '\n';
            const auto &grid = *dialog.findChild<FlexGrid *>("grdPreview");
            EXPECT_TRUE(grid.Rows() == 1 || grid.selection() == (GridSelection{1, 1, 1, 1}));
            EXPECT_FALSE(grid.findChild<QAbstractScrollArea *>()->horizontalScrollBar()->isVisible());
        }));
        EXPECT_EQ(status(0), resText(506));
    }
    expectAsIn("imports.txt", found);
    EXPECT_EQ(prompts.folder, folder.path());
    EXPECT_EQ(words(), "English|German, |") << "each was left";
}

TEST_F(ListsTest, AListIsReadAsThePreviewShowsIt)
{
    prompts.openPath = writeFile(folder.filePath("list"), "x;English;German;note\n1;house;Haus;\n2;;;n\n3;a,b;c,d;\n");
    QCoreApplication::processEvents(); // the page shows
    inNextDialog([](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Import - list");
        EXPECT_FALSE(dialog.findChild<QWidget *>("optThis")->isEnabled());
        const QString steps = readFile(SOURCE_FOLDER "/tests/app/data/preview.txt"); // choices, and what they show
        for (const QString &step : steps.split('\n', Qt::SkipEmptyParts)) {
            choose(dialog, step.section(" -> ", 0, 0).split(" + "));
            EXPECT_EQ(preview(dialog).toStdString(), step.section(" -> ", 1).toStdString());
        }
        choose(dialog, {"btnOK"});
    });
    for (LinkButton *link : window->findChildren<LinkButton *>()) {
        if (link->text() == "Import a list...")
            link->click();
    }
    EXPECT_EQ(words(), "German|English, Haus|house, c,d|a,b, |");
    EXPECT_TRUE(documents().active()->Dirty() && documents().active()->Caption() == "Untitled 1");
    EXPECT_EQ(status(0), "2 rows imported");
}

TEST_F(ListsTest, RowsGoInAboveTheCurrentOneAndOutAgain)
{
    newDocument()->Rutor()->setWords({"A", "1", "2", ""}, {"B", "3", "4", ""}, {});
    documents().active()->select({2, 2, 2, 2});
    const QString before = words();
    QGuiApplication::clipboard()->setText("house - Haus\n");
    EXPECT_TRUE(inDialog("mnuEditPasteList", [](QDialog &dialog) { choose(dialog, {"optThis", "btnOK"}); }));
    EXPECT_EQ(words(), "A|B, 1|3, house|Haus, 2|4, |");
    EXPECT_EQ(window->UndoAction() + status(0), "&Undo Import" + resText(14374));
    window->DoMenuClick("mnuEditUndo");
    EXPECT_EQ(words(), before);
    EXPECT_EQ(documents().active()->selection(), (GridSelection{2, 2, 2, 2}));
}

TEST_F(ListsTest, WhatCannotBeReadOrWrittenIsTold)
{
    newDocument();
    window->DoMenuClick("mnuFileImport");
    EXPECT_TRUE(alert.shown.empty()) << "no file was chosen";
    prompts.openPath = writeFile(folder.filePath("list"), "PK\x03\x04");
    window->DoMenuClick("mnuFileImport");
    documents().active()->Rutor()->setWords({"A", "1,2", ""}, {"B", QString(QChar(0xD800)), ""}, {});
    for (const char *name : {"", "none/a.csv", "a.csv"}) {
        prompts.savePath = *name ? folder.filePath(name) : QString();
        window->DoMenuClick("mnuFileExport");
    }
    expectAsIn("troubles.txt", alert.told().remove(folder.path()) + '\n');
    EXPECT_EQ(readFile(prompts.savePath), "\xEF\xBB\xBF"
                                          "A,B\r\n\"1,2\",?\r\n");
    EXPECT_EQ(status(0), "1 row exported; font, row heights and column widths stay in the vocabulary");
    EXPECT_TRUE(documents().active()->DocName().isEmpty());
}
