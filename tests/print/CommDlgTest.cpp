#include "print/dialogs/clsCommDlg.h"

#include "print/dialogs/QtDialogs.h"
#include "print/dialogs/frmPageSetup.h"
#include "print/dialogs/frmTest.h"
#include "print/printer/QtPrinter.h"
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
};

TEST_F(CommDlg, FileDialogsAreAskedForWhatTheProgramSaysAndTellWhatWasChosen)
{
    std::tie(dialog.DialogTitle, dialog.InitDir) = std::pair("Choose", "/bo");
    const std::tuple<int, int, const char *, const char *, const char *> cases[] = {
        {clsCommDlg::ActionOpen, 0x81004, "a", "gla", VocabularyFilter},
        {clsCommDlg::ActionSaveAs, 4, "", "gla", "Lists|*.gla; *.txt|All (old|*|None|"},
        {clsCommDlg::ActionSaveAs, 0x406, "a.glb", "gla", VocabularyFilter},
        {clsCommDlg::ActionSaveAs, 4, "a", "", VocabularyFilter}};
    std::string seen;
    for (const auto &[action, flags, name, extension, filter] : cases) {
        for (const char *chosen : {"list.gla", "list.GLA", "list", "list.txt", "a.b.txt", ".list", "list."}) {
            std::tie(dialog.flags, dialog.FileName, dialog.DefaultExt, dialog.FilterIndex, dialog.Filter) =
                std::tuple(flags, name, extension, action, filter);
            dialogs.chosen = {QString("/ann.b/") + chosen};
            dialog.setAction(action);
            const FileRequest &asked = dialogs.file;
            seen += '\n' + told(asked.title, asked.folder, asked.fileName, asked.nameFilters.join('|'),
                                asked.filterIndex, asked.defaultExt, asked.mustExist, "->", chosen, dialog.FileName,
                                dialog.FileTitle, dialog.FilterIndex, QString::number(dialog.flags, 16));
        }
    }
    EXPECT_EQ(seen, drawnAs("file_dialogs"));
}

TEST_F(CommDlg, CancelIsAnErrorAndLeavesTheProperties)
{
    QWidget active;
    QApplication::setActiveWindow(&active);
    std::tie(dialog.FileName, dialog.Copies) = std::pair("Untitled 1", 7);
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
    std::string seen;
    for (const int flags : {0x100000, 0x100013, 0x10001c, 0x100008}) {
        dialog.flags = flags;
        dialogs.pages = PrintChoice{3, 4, 5, !(flags & 4), !(flags & 8), flags == 0x100000};
        dialog.setAction(clsCommDlg::ActionPrint);
        const PrintRequest &asked = dialogs.print;
        seen += '\n' + told(asked.minPage, asked.fromPage, asked.toPage, asked.maxPage, asked.offerSelection,
                            asked.offerPageNumbers, asked.pageNumbers, asked.collate, "->", dialog.Copies,
                            dialog.FromPage, dialog.ToPage, QString::number(dialog.flags, 16));
    }
    EXPECT_EQ(seen, drawnAs("print_dialog"));
    EXPECT_THROW(dialog.setAction(clsCommDlg::ActionHelp), CommDlgError);
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
    std::string seen;
    onNext<QFileDialog>([&](QFileDialog &window) {
        seen = offered(window);
        onNext<QMessageBox>([&](QMessageBox &box) {
            seen += "| " + box.text().toStdString();
            onNext<QFileDialog>([&](QFileDialog &again) {
                seen += "| " + offered(again);
                onNext<QMessageBox>([](QMessageBox &last) { last.button(QMessageBox::Yes)->click(); });
                type(again, "fileNameEdit", "small.txt", Qt::Key_Return);
            });
            EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
            box.button(QMessageBox::No)->click();
        });
        type(window, "fileNameEdit", "small", Qt::Key_Return);
    });
    dialog.setAction(clsCommDlg::ActionSaveAs);
    EXPECT_EQ(seen, "Untitled 1.gla B (*.b) of A (*.a)|B (*.b) 1110 0 1 | 'small.gla' already exists.\nDo you want to "
                    "replace it?| small.gla B (*.b) of A (*.a)|B (*.b) 1110 0 1 ");
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
        const auto said = [&files](int row) { // by a screen reader
            const QModelIndex name = files.model()->index(row, 0, files.rootIndex());
            return told(name.data(), name.siblingAtColumn(1).data(Qt::AccessibleTextRole));
        };
        EXPECT_EQ((std::set{said(0), said(1)}), (std::set<std::string>{"small.gla ", "sub Folder"}));
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
    const std::tuple<int, const char *, const char *, const char *> cases[] = {
        {0x100014, "printRange", "0", "9"}, {0x100006, "printRange", "4", "2"}, {0x100018, "printSelection", "", ""}};
    std::string seen;
    for (const auto &[flags, range, from, to] : cases) {
        dialog.flags = flags;
        QStringList offers;
        onNext<QPrintDialog>([&, range = range, from = from, to = to](QPrintDialog &window) {
            offers << window.findChild<QComboBox *>("printers")->currentText();
            for (const auto *button : window.findChildren<QRadioButton *>())
                offers << (button->isVisible() ? shownPart(*button) : "");
            window.findChild<QRadioButton *>(range)->click();
            for (const auto &[box, number] : {std::pair("from", from), {"to", to}, {"copies", "2"}})
                type(*window.findChild<QSpinBox *>(box), "qt_spinbox_lineedit", number, Qt::Key_Tab);
            window.accept();
        });
        dialog.setAction(clsCommDlg::ActionPrint);
        seen += '\n' + told(offers.join(' '), dialog.FromPage, dialog.ToPage, QString::number(dialog.flags, 16));
        EXPECT_TRUE(printer.wantsPage(dialog.FromPage) && printer.wantsPage(dialog.ToPage) && dialog.Copies == 2);
        EXPECT_EQ(QSize(printer.Width(), printer.Height()), QSize(11900, 8400)) << "A5 on its side";
    }
    EXPECT_EQ(seen, drawnAs("pages_to_print"));
}

TEST_F(RealDialogs, HelpOpensATopicOrTheContents)
{
    for (dialog.HelpKey = "1120"; dialog.HelpCommand < 2; ++dialog.HelpCommand)
        dialog.setAction(clsCommDlg::ActionHelp);
    EXPECT_EQ(help.calls,
              (std::vector<RecordingHelp::Call>{{"Main", HH_DISPLAY_TOC, 1120}, {"Main", HH_HELP_CONTEXT, 1120}}));
}

TEST(PageSetup, OffersPrintersAndWhatEachCanDo)
{
    const QPageSize a4(QPageSize::A4), a5(QPageSize::A5), letter(QPageSize::Letter);
    const QPageSize other(QSizeF(300, 500), QPageSize::Point, "other");
    const std::vector<PrinterOffer> offers{
        {"laser", {letter, a5}, letter, false}, {"office", {a4, a5}, a4, true}, {{}, {a4}, a4}};
    std::string seen;
    for (const PrinterSetup &present : {PrinterSetup{"office", a5, QPageLayout::Landscape, QPrinter::DuplexShortSide},
                                        {"gone", other, QPageLayout::Portrait, QPrinter::DuplexAuto},
                                        {{}, a4}}) {
        frmPageSetup dialog(offers, present, nullptr);
        dialog.show();
        for (const char *step : {"-", "laser", "optPortrait", "Print to File (PDF)", "office", "A5", "Off", "Long Edge",
                                 "optLandscape", "btnOK", "btnCancel"}) {
            if (auto *button = dialog.findChild<QAbstractButton *>(step))
                button->click();
            for (auto *box : dialog.findChildren<QComboBox *>())
                box->setCurrentText(step);
            const PrinterSetup setup = dialog.setup();
            seen += '\n' + shown(dialog).toStdString() + " | " +
                    told(setup.printer, setup.paper.name(), setup.orientation, setup.duplex, dialog.result());
        }
    }
    EXPECT_EQ(seen, drawnAs("page_setup"));
}

TEST(PageSetup, OffersAFileOfTheUsualPaper)
{
    const QLocale before;
    for (const auto &[locale, usual] : {std::pair("en_US", "Letter / ANSI A"), {"de_DE", "A4"}}) {
        QLocale::setDefault(QLocale(locale));
        const PrinterOffer pdf = offeredPrinters().back();
        EXPECT_EQ(pdf.usualPaper.name(), usual);
        EXPECT_EQ(pdf.papers.size(), QPageSize::LastPageSize) << "all but the one of no common size";
    }
    QLocale::setDefault(before);
}

TEST(TestDialog, OffersTheLastChoiceAndTellsTheNew)
{
    const PrintSource words = sourceOf(5);
    int number = 990;
    std::string seen;
    for (int n = 1; n < 7; ++n) {
        TestChoice choice{TestChoice::Kind(n & 1), TestChoice::Asked(n % 3), n % 5, n > 2, n, n % 2 + 1, n > 1, n < 4};
        frmTest dialog(
            words, choice, [&number] { return ++number; }, nullptr);
        dialog.show();
        seen += '\n' + shown(dialog).toStdString();
        for (auto *box : dialog.findChildren<QCheckBox *>())
            box->toggle();
        for (const char *button : {"btnNew", "btnCancel", "btnPreview", "btnCancel", "btnPrint"}) {
            dialog.findChild<QPushButton *>(button)->click();
            seen += '\n' + told(button, dialog.result(), choice.kind, choice.asked, choice.count, choice.shuffled,
                                choice.number, choice.columns, choice.nameAndDate, choice.key);
        }
    }
    EXPECT_EQ(seen, drawnAs("test_dialog"));
}
