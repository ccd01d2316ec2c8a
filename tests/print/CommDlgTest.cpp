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
        EXPECT_EQ(dialog.FileTitle, dialog.FileName.section('/', -1));
        EXPECT_EQ(bool(dialog.flags & clsCommDlg::ExtensionDifferent), different) << chosen;
        EXPECT_EQ(dialogs.file.fileName, "Untitled 1.gla");
    }
    dialogs.chosen = {"/ann/list"};
    std::tie(dialog.FileName, dialog.FilterIndex) = std::pair("", 3);
    dialog.setAction(clsCommDlg::ActionSaveAs);
    EXPECT_EQ(std::pair(dialogs.file.fileName, dialogs.file.filterIndex), std::pair(QString(), 2));
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
    EXPECT_EQ(dialog.FileName, "Untitled 1");
    EXPECT_EQ(dialog.Copies, 7);
    EXPECT_EQ(dialogs.file.owner, &active) << "when none is named";
    EXPECT_TRUE(alerts.shown.empty());
    dialogs.printerFault = "no paper";
    dialog.flags = 0;
    EXPECT_THROW(dialog.setAction(clsCommDlg::ActionPrint), CommDlgError);
    EXPECT_EQ(alerts.onlyPrompt(), "no paper");
    EXPECT_TRUE(alerts.shown.front().title == "Printer Error" && alerts.shown.front().exclamation);
}

TEST_F(CommDlg, PrintOffersWhatTheFlagsAllowAndTellsWhatWasChosen)
{
    dialog.MinPage = 2;
    dialog.MaxPage = 9;
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
    dialog.FileName = "Untitled 1";
    dialog.flags = 0x80406;
    onNext<QFileDialog>([this](QFileDialog &window) {
        EXPECT_EQ(window.findChild<QLineEdit *>("fileNameEdit")->text(), "Untitled 1.gla");
        EXPECT_EQ(window.property("helpContextId"), 1110);
        onNext<QMessageBox>([this](QMessageBox &box) {
            EXPECT_TRUE(box.text().contains("small.gla")) << box.text().toStdString();
            onNext<QFileDialog>([](QFileDialog &again) { type(again, "fileNameEdit", "other.txt", Qt::Key_Return); });
            QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
        });
        type(window, "fileNameEdit", "small", Qt::Key_Return);
    });
    dialog.setAction(clsCommDlg::ActionSaveAs);
    EXPECT_EQ(dialog.FileName, folder.filePath("other.gla"));
}

TEST_F(RealDialogs, TheNextDialogStartsWhereTheFileWasThatWasTyped)
{
    const QTemporaryDir elsewhere;
    const QString typed = writeFile(elsewhere.filePath("typed.gla"), "");
    dialog.flags = 0x81004;
    onNext<QFileDialog>([&](QFileDialog &window) {
        EXPECT_EQ(window.directory().path(), folder.path());
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
    dialog.MinPage = 1;
    dialog.MaxPage = 5;
    const std::tuple<const char *, const char *, int, int> cases[] = {{"0", "9", 1, 5}, {"4", "2", 2, 4}};
    for (const auto &[from, to, first, last] : cases) {
        dialog.flags = 0x100014;
        onNext<QPrintDialog>([from = from, to = to](QPrintDialog &window) {
            window.findChild<QRadioButton *>("printRange")->click();
            for (const auto &[box, number] : {std::pair("from", from), {"to", to}, {"copies", "2"}})
                type(*window.findChild<QSpinBox *>(box), "qt_spinbox_lineedit", number, Qt::Key_Tab);
            window.accept();
        });
        dialog.setAction(clsCommDlg::ActionPrint);
        EXPECT_EQ(std::pair(dialog.FromPage, dialog.ToPage), std::pair(first, last));
        EXPECT_TRUE(printer.wantsPage(first) && printer.wantsPage(last));
        EXPECT_EQ(dialog.flags, 0x100016);
        EXPECT_EQ(dialog.Copies, 2);
        EXPECT_EQ(printer.printer().copyCount(), 1) << "the copies are printed by the program";
        EXPECT_EQ(QSize(printer.Width(), printer.Height()), QSize(11900, 8400)) << "A5 on its side";
    }
}

TEST(PageSetup, OffersPrintersAndWhatEachCanDo)
{
    const QPageSize a4(QPageSize::A4);
    const QPageSize a5(QPageSize::A5);
    const QPageSize letter(QPageSize::Letter);
    const std::vector<PrinterOffer> offers{
        {"laser", {letter, a5}, letter, false}, {"office", {a4, a5}, a4, true}, {{}, {a4}, a4}};
    frmPageSetup dialog(offers, {"office", a5, QPageLayout::Landscape, QPrinter::DuplexShortSide}, nullptr);
    EXPECT_EQ(dialog.findChild<QComboBox *>("cboSides")->count(), 3);
    auto *printers = dialog.findChild<QComboBox *>("cboPrinter");
    const auto chosen = [&dialog] {
        const PrinterSetup setup = dialog.setup();
        return std::tuple(setup.printer, setup.paper.id(), setup.orientation, setup.duplex);
    };
    EXPECT_EQ(chosen(), std::tuple("office", QPageSize::A5, QPageLayout::Landscape, QPrinter::DuplexShortSide));
    printers->setCurrentIndex(0);
    EXPECT_EQ(chosen(), std::tuple("laser", QPageSize::A5, QPageLayout::Landscape, QPrinter::DuplexNone));
    printers->setCurrentIndex(2);
    dialog.findChild<QRadioButton *>("optPortrait")->click();
    EXPECT_EQ(printers->currentText(), "Print to File (PDF)");
    EXPECT_EQ(chosen(), std::tuple("", QPageSize::A4, QPageLayout::Portrait, QPrinter::DuplexNone));
    frmPageSetup other(offers, {{}, QPageSize(QSizeF(300, 500), QPageSize::Point), {}, {}}, nullptr);
    EXPECT_EQ(other.setup().paper.sizePoints(), QSize(300, 500)) << "a paper that is not among the common ones";
}

TEST(TestDialog, OffersTheLastChoiceAndTellsTheNew)
{
    const auto parts = [](const TestChoice &c) {
        return std::tuple(c.kind, c.asked, c.count, c.shuffled, c.number, c.columns, c.nameAndDate, c.key);
    };
    const PrintSource words = sourceOf(5);
    for (int n = 1; n < 96; ++n) {
        const TestChoice given{TestChoice::Kind(n & 1),
                               TestChoice::Asked(n % 3),
                               n % 5,
                               bool(n & 2),
                               n,
                               1 + bool(n & 4),
                               bool(n & 8),
                               bool(n & 16)};
        TestChoice choice = given;
        frmTest dialog(
            words, choice, [&n] { return n++; }, nullptr);
        EXPECT_EQ(dialog.findChild<QWidget *>("spnNumber")->isEnabled(), given.shuffled);
        EXPECT_EQ(dialog.findChild<QWidget *>("chkColumns")->isEnabled(), given.kind == TestChoice::Sheet);
        EXPECT_TRUE(dialog.findChild<QRadioButton *>("optAsked1")->text().contains("German"));
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
