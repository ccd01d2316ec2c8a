#include "MainWindowFixture.h"

#include "print/PrintCommands.h"

struct PreviewCommandsTest : MainWindowFixture
{
    /// A document whose words fill a number of pages.
    frmDoc *document(int pages)
    {
        frmDoc *made = newDocument();
        ctlGrid &grid = *made->Rutor();
        grid.setRows(49 * pages);
        for (int row = 1; row < grid.Rows(); ++row)
            grid.setTextMatrix(row, 1, QString("%1 %2").arg(made->Caption()).arg(row));
        return made;
    }
    PrintPreview &preview() { return window->context().print.preview(); }
};

TEST_F(PreviewCommandsTest, ThePreviewTakesTheDocumentsPlaceAndGivesItBack)
{
    std::map<frmDoc *, QRect> places;
    for (int i = 0; i < 3; ++i) {
        frmDoc *made = document(2);
        made->frame()->move(20 + 31 * i, 10 + 17 * i);
        places[made] = made->frame()->geometry();
    }
    frmDoc *active = documents().open()[1];
    window->documentArea()->activate(*active);
    window->DoMenuClick("mnuFilePrintPreview");
    entries("mnuFile");
    EXPECT_FALSE(window->commands().action("mnuFilePrintPreview")->isIconVisibleInMenu());
    const QWidget &area = *window->findChild<QWidget *>("PreviewArea");
    EXPECT_TRUE(area.backgroundRole() == QPalette::Dark && area.autoFillBackground());
    window->DoMenuClick("Next");
    EXPECT_EQ(preview().visiblePage(), 1);
    EXPECT_TRUE(button("tbrPreview", "Previous")->isEnabled() && !button("tbrPreview", "Next")->isEnabled());
    dialogs.pages = PrintChoice{1, 1, 2, false, false, true};
    window->DoMenuClick("mnuFilePrint");
    EXPECT_TRUE(printer.sheets.at(0).find(active->Caption() + " 1"));

    window->DoMenuClick("Close");
    for (const auto &[made, place] : places)
        EXPECT_TRUE(made->frame()->isVisible() && made->frame()->geometry() == place);
}

TEST_F(PreviewCommandsTest, OpeningAFileAndLeavingTheProgramEndThePreview)
{
    document(1);
    window->DoMenuClick("mnuFilePrintPreview");
    window->OpenRequestedFile(folder.filePath("missing.gla"));
    EXPECT_TRUE(preview().isOpen());
    dialogs.pages = PrintChoice{1, 1, 1, false, false, true};
    dialogs.duringPrint = [this] { window->OpenRequestedFile(writeVocabulary("other.gla")); };
    window->DoMenuClick("mnuFilePrint");
    EXPECT_TRUE(printer.sheets.front().find("Untitled 1 1"));
    EXPECT_FALSE(preview().isOpen());
    dialogs.duringPrint = nullptr;
    printer.duringSheet = [this] {
        EXPECT_EQ(status(0), "Printing page 1");
        documents().active()->frame()->close();
    };
    window->DoMenuClick("mnuFilePrint");
    EXPECT_EQ(printer.jobs, 2) << "what closes meanwhile is printed to its end";
    EXPECT_EQ(documents().open().size(), 1U);
    window->OpenRequestedFile(writeVocabulary("other.gla"));
    EXPECT_EQ(documents().active()->Caption(), QString("other"));
    window->DoMenuClick("mnuFilePrintPreview");
    window->DoMenuClick("mnuFileExit");
    EXPECT_FALSE(preview().isOpen() || window->isVisible());
}

TEST_F(PreviewCommandsTest, ATestIsPreviewedAndPrintedAsItWasChosen)
{
    ctlGrid &grid = *newDocument()->Rutor();
    const auto press = [this](const QStringList &names) {
        inNextDialog([names](QDialog &dialog) {
            for (const QString &name : names)
                dialog.findChild<QAbstractButton *>(name)->click();
        });
        window->DoMenuClick("mnuFilePrintTest");
        QCoreApplication::processEvents();
    };
    press({});
    EXPECT_EQ(alert.told(), ": " + resText(14778)) << "there are no words";
    grid.setTextMatrix(1, 1, "a");
    grid.setTextMatrix(1, 2, "b");
    press({"optAsked1", "chkKey", "btnPreview"});
    ASSERT_TRUE(preview().isOpen());
    EXPECT_EQ(preview().pageWindow()->pageCount(), 1);
    dialogs.pages = PrintChoice{1, 1, 1, false, false, false};
    window->DoMenuClick("mnuFilePrint");
    EXPECT_TRUE(printer.sheets.at(0).find("b") && !printer.sheets.at(0).find("a"));
    window->DoMenuClick("Close");
    press({"optCards", "btnPrint"});
    ASSERT_EQ(printer.sheets.size(), 3U);
    EXPECT_TRUE(printer.sheets[2].find("a")) << "the choice before is offered again";
}
