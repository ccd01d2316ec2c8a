#include "print/dialogs/clsCommDlg.h"

#include "print/dialogs/QtDialogs.h"
#include "print/dialogs/frmPageSetup.h"
#include "print/dialogs/frmTest.h"
#include "print/printer/QtPrinter.h"
#include "print/rules/FileDialogRules.h"
#include "support/RecordingHelp.h"
#include "support/RecordingPrinter.h"
#include "support/ScriptedAlertBox.h"
#include "support/ScriptedDialogs.h"
#include "support/ScriptedPrintServer.h"

#include <QPrintDialog>

constexpr char VocabularyFilter[] = "Glosaria Document (*.gla) | *.gla";

template <class... Values> std::string told(const Values &...values)
{
    QStringList texts;
    (texts.append(QVariant(values).toString()), ...);
    return texts.join(' ').toStdString();
}

struct CommDlg : ::testing::Test
{
    ScriptedDialogs dialogs;
    ScriptedAlertBox alerts;
    clsCommDlg dialog{dialogs, alerts};

    void SetUp() override
    {
        dialog.DefaultExt = "gla";
        dialog.FileName = "Untitled 1";
        dialog.flags = 0x80406;
    }
};

TEST_F(CommDlg, SaveAsGivesEveryNameTheExtension)
{
    const std::tuple<const char *, const char *, bool> cases[] = {
        {"/ann/list.txt", "/ann/list.gla", true},     {"/ann.b/list", "/ann.b/list.gla", false},
        {"/ann/list.GLA", "/ann/list.GLA", false},    {"/ann/a.b.txt", "/ann/a.b.gla", true},
        {"/ann.b/list.txt", "/ann.b/list.gla", true}, {"/ann/.list", "/ann/.list.gla", false},
        {"/ann/list.", "/ann/list.gla", false},       {"/ann/list.gla", "/ann/list.gla", false},
    };
    for (const auto &[chosen, saved, different] : cases) {
        SetUp();
        dialogs.chosen = {chosen};
        dialog.setAction(clsCommDlg::ActionSaveAs);
        EXPECT_EQ(dialog.FileName, saved);
        EXPECT_EQ(bool(dialog.flags & clsCommDlg::ExtensionDifferent), different) << chosen;
        EXPECT_EQ(dialogs.file.fileName, "Untitled 1.gla");
    }
}

TEST_F(CommDlg, FileDialogsAreAskedForWhatTheProgramSays)
{
    std::tie(dialog.DialogTitle, dialog.InitDir, dialog.Filter) = std::tuple("Choose", "/bo", VocabularyFilter);
    const std::tuple<int, int, const char *, const char *, const char *> cases[] = {
        {clsCommDlg::ActionOpen, 0x81004, "a", "gla",
         "Choose /bo a Glosaria Document (*.gla) 2 gla true -> list.txt 1"},
        {clsCommDlg::ActionSaveAs, 4, "", "gla", "Choose /bo  Glosaria Document (*.gla) 2 gla false -> list.gla 1"},
        {clsCommDlg::ActionSaveAs, 4, "a", "", "Choose /bo a Glosaria Document (*.gla) 2  false -> list.txt 1"}};
    for (const auto &[action, flags, name, extension, expected] : cases) {
        std::tie(dialog.flags, dialog.FileName, dialog.DefaultExt, dialog.FilterIndex) =
            std::tuple(flags, name, extension, 3);
        dialogs.chosen = {"/ann/list.txt"};
        dialog.setAction(action);
        const FileRequest &asked = dialogs.file;
        EXPECT_EQ(told(asked.title, asked.folder, asked.fileName, asked.nameFilters.join('|'), asked.filterIndex,
                       asked.defaultExt, asked.mustExist, "->", dialog.FileTitle, dialog.FilterIndex),
                  expected);
    }
}

TEST_F(CommDlg, CancelIsAnErrorAndLeavesTheProperties)
{
    QWidget active;
    QApplication::setActiveWindow(&active);
    dialog.Copies = 7;
    for (const int action : {clsCommDlg::ActionOpen, clsCommDlg::ActionSaveAs, clsCommDlg::ActionPrint})
        EXPECT_THROW(dialog.setAction(action), CommDlgCancelled);
    dialog.flags |= clsCommDlg::PrintSetup;
    EXPECT_THROW(dialog.setAction(clsCommDlg::ActionPrint), CommDlgCancelled);
    EXPECT_EQ(told(dialog.FileName, dialog.Copies), "Untitled 1 7");
    EXPECT_TRUE(alerts.shown.empty() && dialogs.file.owner == &active);
    dialogs.printerFault = "no paper";
    dialog.flags = 0;
    EXPECT_THROW(dialog.setAction(clsCommDlg::ActionPrint), CommDlgError);
    EXPECT_EQ(alerts.onlyPrompt(), "no paper");
    EXPECT_TRUE(alerts.shown.front().title == "Printer Error" && alerts.shown.front().exclamation);
}

TEST_F(CommDlg, PrintOffersWhatTheFlagsAllowAndTellsWhatWasChosen)
{
    std::tie(dialog.MinPage, dialog.MaxPage) = std::pair(2, 9);
    for (int chosen = 0; chosen < 8; ++chosen) {
        const int bits =
            (chosen & 1 ? 1 : 0) | (chosen & 2 ? 2 : 0) | (chosen & 4 ? 16 : 0); // selection, pages, collated
        dialog.flags = 0x100000 | (bits ^ 19) | (chosen & 1 ? 4 : 0) | (chosen & 2 ? 8 : 0);
        dialogs.pages = PrintChoice{3, 4, 5, bool(chosen & 2), bool(chosen & 1), bool(chosen & 4)};
        dialog.setAction(clsCommDlg::ActionPrint);
        EXPECT_EQ(dialog.flags & 0x100013, 0x100000 | bits);
        const PrintRequest &asked = dialogs.print;
        EXPECT_EQ(
            (QList<int>{dialog.Copies, dialog.FromPage, dialog.ToPage, asked.minPage, asked.fromPage, asked.toPage,
                        asked.maxPage, asked.offerSelection, asked.offerPageNumbers, asked.pageNumbers, asked.collate}),
            (QList<int>{3, 4, 5, 2, 2, 9, 9, !(chosen & 1), !(chosen & 2), !(chosen & 2), !(chosen & 4)}));
    }
    EXPECT_THROW(dialog.setAction(clsCommDlg::ActionHelp), CommDlgError);
}

TEST(FileFilter, BecomesThePlatformsFilters)
{
    EXPECT_EQ(FileDialogRules::nameFilters(VocabularyFilter), QStringList{"Glosaria Document (*.gla)"});
    EXPECT_EQ(FileDialogRules::nameFilters("Lists|*.gla; *.txt|All (old|*|None|"),
              (QStringList{"Lists (*.gla *.txt)", "All (old (*)"}));
    EXPECT_EQ(FileDialogRules::withAppendedExtension("a.glb", "gla"), "a.glb.gla");
}

/// The real dialogs over a folder of files.
struct RealDialogs : ::testing::Test
{
    QTemporaryDir folder;
    ScriptedPrintServer server;
    QtPrinter printer{server};
    RecordingHelp help;
    QtDialogs dialogs{printer, help};
    ScriptedAlertBox alerts;
    clsCommDlg dialog{dialogs, alerts};

    void SetUp() override
    {
        writeFile(folder.filePath("small.gla"), "");
        dialog.InitDir = folder.path();
        dialog.Filter = VocabularyFilter;
        dialog.DefaultExt = "gla";
    }

    /// Runs a step on the next modal window of a kind, once it is up.
    template <class Window> void onNext(std::function<void(Window &)> step)
    {
        QTimer::singleShot(0, qApp, [this, step] {
            auto *window = qobject_cast<Window *>(QApplication::activeModalWidget());
            window &&QTest::qWaitForWindowExposed(window) ? step(*window) : onNext<Window>(step);
        });
    }
    static std::string offered(const QFileDialog &window)
    {
        return told(window.findChild<QLineEdit *>("fileNameEdit")->text(), window.selectedNameFilter(), "of",
                    window.nameFilters().join('|'), window.property("helpContextId"), int(window.fileMode()),
                    int(window.acceptMode()), window.defaultSuffix());
    }
    static void type(const QWidget &window, const char *box, const QString &text, Qt::Key last)
    {
        auto *edit = window.findChild<QLineEdit *>(box);
        edit->selectAll();
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, last);
    }
};

TEST_F(RealDialogs, SaveAsAsksAboutTheRealTargetAndGoesBackOnNo)
{
    std::tie(dialog.FileName, dialog.FilterIndex, dialog.Filter) = std::tuple("Untitled 1", 2, "A (*.a)|*.a|B|*.b");
    dialog.flags = 0x80406;
    onNext<QFileDialog>([this](QFileDialog &window) {
        EXPECT_EQ(offered(window), "Untitled 1.gla B (*.b) of A (*.a)|B (*.b) 1110 0 1 ");
        onNext<QMessageBox>([this](QMessageBox &box) {
            EXPECT_TRUE(box.text().contains("small.gla")) << box.text().toStdString();
            onNext<QFileDialog>([this](QFileDialog &again) {
                onNext<QMessageBox>([](QMessageBox &last) { last.button(QMessageBox::Yes)->click(); });
                type(again, "fileNameEdit", "small.txt", Qt::Key_Return);
            });
            EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
            box.button(QMessageBox::No)->click();
        });
        type(window, "fileNameEdit", "small", Qt::Key_Return);
    });
    dialog.setAction(clsCommDlg::ActionSaveAs);
    EXPECT_EQ(std::pair(dialog.FileName, dialog.FilterIndex), std::pair(folder.filePath("small.gla"), 2));
}

TEST_F(RealDialogs, TheNextDialogStartsWhereTheFileWasThatWasTyped)
{
    const QTemporaryDir elsewhere;
    QDir(folder.path()).mkdir("sub");
    const QString typed = writeFile(elsewhere.filePath("typed.gla"), "");
    dialog.flags = 0x81004;
    onNext<QFileDialog>([&](QFileDialog &window) {
        EXPECT_EQ(window.directory().path(), folder.path());
        EXPECT_EQ(offered(window), " Glosaria Document (*.gla) of Glosaria Document (*.gla) 1110 1 0 gla");
        const auto &files = *window.findChild<QTreeView *>("treeView");
        EXPECT_TRUE(QTest::qWaitFor([&files] { return files.model()->rowCount(files.rootIndex()) == 2; }));
        QStringList sizes; // as a screen reader says them
        for (int row = 0; row < 2; ++row) {
            const QModelIndex name = files.model()->index(row, 0, files.rootIndex());
            sizes << name.data().toString() + u':' + name.siblingAtColumn(1).data(Qt::AccessibleTextRole).toString();
        }
        sizes.sort();
        EXPECT_EQ(sizes.join(' '), "small.gla: sub:Folder");
        type(window, "fileNameEdit", typed, Qt::Key_Return);
    });
    dialog.setAction(clsCommDlg::ActionOpen);
    dialog.InitDir.clear();
    onNext<QFileDialog>([&](QFileDialog &window) {
        EXPECT_EQ(window.directory().path(), elsewhere.path());
        window.reject();
    });
    EXPECT_THROW(dialog.setAction(clsCommDlg::ActionOpen), CommDlgCancelled);
    for (const QString &place : {QString(), folder.path()}) {
        dialog.InitDir = place;
        onNext<QPrintDialog>([&](QPrintDialog &window) {
            const QString file = window.findChild<QLineEdit *>("filename")->text();
            EXPECT_EQ(QFileInfo(file).path(), place.isEmpty() ? elsewhere.path() : place);
            EXPECT_EQ(window.property("helpContextId"), 1120);
            window.reject();
        });
        EXPECT_THROW(dialog.setAction(clsCommDlg::ActionPrint), CommDlgCancelled);
    }
}

TEST_F(RealDialogs, PrintTakesPagesThatAreThereAndKeepsThePaper)
{
    printer.printer().setOutputFileName(folder.filePath("out.pdf"));
    dialog.flags = clsCommDlg::PrintSetup;
    onNext<frmPageSetup>([](frmPageSetup &window) {
        auto *papers = window.findChild<QComboBox *>("cboPaper");
        EXPECT_EQ(papers->currentText(), "A4");
        papers->setCurrentIndex(papers->findText("A5"));
        window.findChild<QRadioButton *>("optLandscape")->click();
        window.accept();
    });
    dialog.setAction(clsCommDlg::ActionPrint);
    std::tie(dialog.MinPage, dialog.MaxPage) = std::pair(1, 5);
    const std::tuple<int, const char *, const char *, const char *, const char *> cases[] = {
        {0x100014, "printRange", "0", "9", "Print to File (PDF) printAll printRange   1 5 100016"},
        {0x100014, "printRange", "4", "2", "Print to File (PDF) printAll printRange   2 4 100016"},
        {0x100010, "printSelection", "", "", "Print to File (PDF) printAll printRange printSelection  0 0 100011"}};
    for (const auto &[flags, range, from, to, expected] : cases) {
        dialog.flags = flags;
        QStringList offers;
        onNext<QPrintDialog>([&, range = range, from = from, to = to](QPrintDialog &window) {
            offers << window.findChild<QComboBox *>("printers")->currentText();
            for (const char *name : {"printAll", "printRange", "printSelection", "printCurrentPage"}) {
                const auto *button = window.findChild<QRadioButton *>(name);
                offers << (button && button->isVisible() && button->isEnabled() ? name : "");
            }
            window.findChild<QRadioButton *>(range)->click();
            for (const auto &[box, number] : {std::pair("from", from), {"to", to}, {"copies", "2"}})
                type(*window.findChild<QSpinBox *>(box), "qt_spinbox_lineedit", number, Qt::Key_Tab);
            window.accept();
        });
        dialog.setAction(clsCommDlg::ActionPrint);
        EXPECT_EQ(told(offers.join(' '), dialog.FromPage, dialog.ToPage, QString::number(dialog.flags, 16)), expected);
        EXPECT_TRUE(printer.wantsPage(dialog.FromPage) && printer.wantsPage(dialog.ToPage) && dialog.Copies == 2);
        EXPECT_EQ(printer.printer().copyCount(), 1) << "the copies are printed by the program";
        EXPECT_EQ(QSize(printer.Width(), printer.Height()), QSize(11900, 8400)) << "A5 on its side";
    }
}

TEST_F(RealDialogs, HelpOpensATopicOrTheContents)
{
    std::tie(dialog.HelpFile, dialog.HelpKey) = std::pair("other.qch", "1120");
    for (const int command : {1, 3}) {
        dialog.HelpCommand = command;
        dialog.setAction(clsCommDlg::ActionHelp);
    }
    EXPECT_EQ(help.calls,
              (std::vector<RecordingHelp::Call>{{"Main", HH_HELP_CONTEXT, 1120}, {"Main", HH_DISPLAY_TOC, 1120}}));
}

TEST(PageSetup, OffersPrintersAndWhatEachCanDo)
{
    const QPageSize a4(QPageSize::A4), a5(QPageSize::A5), letter(QPageSize::Letter);
    const std::vector<PrinterOffer> offers{
        {"laser", {letter, a5}, letter, false}, {"office", {a4, a5}, a4, true}, {{}, {a4}, a4}};
    frmPageSetup dialog(offers, {"office", a5, QPageLayout::Landscape, QPrinter::DuplexShortSide}, nullptr);
    dialog.show();
    const auto chosen = [&dialog] {
        const PrinterSetup setup = dialog.setup();
        return told(setup.printer, setup.paper.name(), int(setup.orientation), int(setup.duplex));
    };
    EXPECT_EQ(shown(dialog),
              "Page Setup | &Printer: | {office} | P&aper: | {A5} | &Two-Sided: | {Short Edge} | Orientation | [ ] "
              "P&ortrait | [x] &Landscape | OK | Cancel");
    EXPECT_EQ(chosen(), "office A5 1 3");
    auto *printers = dialog.findChild<QComboBox *>("cboPrinter");
    printers->setCurrentIndex(0);
    EXPECT_TRUE(shown(dialog).contains("{laser} | P&aper: | {A5} | &Two-Sided: | ({Short Edge})"));
    EXPECT_EQ(chosen(), "laser A5 1 0");
    printers->setCurrentIndex(2);
    dialog.findChild<QRadioButton *>("optPortrait")->click();
    EXPECT_EQ(printers->currentText(), "Print to File (PDF)");
    EXPECT_EQ(chosen(), " A4 0 0");
    for (const auto &[button, result] : {std::pair("btnCancel", 0), {"btnOK", 1}}) {
        dialog.findChild<QPushButton *>(button)->click();
        EXPECT_EQ(dialog.result(), result);
    }
    frmPageSetup other(offers, {{}, QPageSize(QSizeF(300, 500), QPageSize::Point), {}, {}}, nullptr);
    EXPECT_EQ(other.setup().paper.sizePoints(), QSize(300, 500)) << "a paper that is not among the common ones";
    const PrinterOffer pdf = offeredPrinters().back();
    EXPECT_TRUE(std::all_of(pdf.papers.begin(), pdf.papers.end(), [](const auto &paper) { return paper.isValid(); }));
}

TEST(TestDialog, OffersTheLastChoiceAndTellsTheNew)
{
    const auto parts = [](const TestChoice &c) {
        return std::tuple(c.kind, c.asked, c.count, c.shuffled, c.number, c.columns, c.nameAndDate, c.key);
    };
    const PrintSource words = sourceOf(5);
    for (int n = 1; n < 96; ++n) {
        TestChoice given;
        std::tie(given.kind, given.asked, given.count, given.shuffled, given.number, given.columns, given.nameAndDate,
                 given.key) = std::tuple(TestChoice::Kind(n & 1), TestChoice::Asked(n % 3), n % 5, n & 2, n,
                                         1 + bool(n & 4), n & 8, n & 16);
        TestChoice choice = given;
        frmTest dialog(
            words, choice, [&n] { return n++; }, nullptr);
        for (const char *name : {"lblNumber", "spnNumber", "btnNew"})
            EXPECT_EQ(dialog.findChild<QWidget *>(name)->isEnabled(), given.shuffled);
        for (const char *name : {"chkColumns", "chkName", "chkKey"})
            EXPECT_EQ(dialog.findChild<QWidget *>(name)->isEnabled(), given.kind == TestChoice::Sheet);
        EXPECT_EQ(dialog.findChild<QRadioButton *>("optAsked1")->text(), "&2 German");
        EXPECT_EQ(dialog.findChild<QSpinBox *>("spnCount")->maximum(), 5);
        choice = {.count = 9, .columns = 9, .nameAndDate = !given.nameAndDate, .key = !given.key};
        dialog.findChild<QPushButton *>("btnCancel")->click();
        EXPECT_EQ(choice.count, 9) << "cancelled";
        dialog.findChild<QPushButton *>("btnPreview")->click();
        EXPECT_EQ(dialog.result(), frmTest::Preview);
        EXPECT_EQ(parts(choice), parts(given));
        if (given.shuffled)
            dialog.findChild<QPushButton *>("btnNew")->click();
        dialog.findChild<QPushButton *>("btnPrint")->click();
        EXPECT_TRUE(dialog.result() == frmTest::Print && choice.number == given.number + given.shuffled);
    }
}
