#include "print/clsCommDlg.h"

#include "print/QtDialogs.h"
#include "print/QtPrinter.h"
#include "print/rules/FileDialogRules.h"
#include "support/ScriptedAlertBox.h"
#include "support/ScriptedDialogs.h"

#include <QAbstractItemView>
#include <QFileDialog>
#include <QMessageBox>

namespace {

class CommDlg : public ::testing::Test
{
protected:
    ScriptedDialogs dialogs;
    ScriptedAlertBox alerts;
    clsCommDlg dialog{dialogs, alerts};

    void prepareSave(const QString &proposed)
    {
        dialog.Filter = QStringLiteral("Glosaria Document (*.gla) | *.gla");
        dialog.DefaultExt = QStringLiteral("gla");
        dialog.FileName = proposed;
        dialog.flags = 0x80406;
    }
};

TEST_F(CommDlg, SaveAsGivesEveryNameTheExtension)
{
    const struct
    {
        const char *chosen;
        const char *saved;
        bool different;
    } cases[] = {
        {"/home/ann/list.txt", "/home/ann/list.gla", true},     {"/home/ann.b/list", "/home/ann.b/list.gla", false},
        {"/home/ann/list.GLA", "/home/ann/list.GLA", false},    {"/home/ann/a.b.txt", "/home/ann/a.b.gla", true},
        {"/home/ann.b/list.txt", "/home/ann.b/list.gla", true}, {"/home/ann/.list", "/home/ann/.list.gla", false},
        {"/home/ann/list.", "/home/ann/list.gla", false},       {"/home/ann/list.gla", "/home/ann/list.gla", false},
    };
    for (const auto &c : cases) {
        prepareSave(QStringLiteral("Untitled 1"));
        dialogs.chosen = {QString::fromUtf8(c.chosen)};
        dialog.setAction(clsCommDlg::ActionSaveAs);
        EXPECT_EQ(dialog.FileName.toStdString(), c.saved);
        EXPECT_EQ(dialog.FileTitle, dialog.FileName.section(u'/', -1));
        EXPECT_EQ(bool(dialog.flags & clsCommDlg::ExtensionDifferent), c.different) << c.chosen;
        EXPECT_EQ(dialogs.file.fileName, QStringLiteral("Untitled 1.gla"));
    }
}

TEST_F(CommDlg, AsksBeforeReplacingTheFileThatWillBeWritten)
{
    prepareSave(QStringLiteral("words"));
    dialogs.existing = {QStringLiteral("/home/list.gla")};
    dialogs.chosen = {QStringLiteral("/home/list"), QStringLiteral("/home/list.txt")};
    dialogs.replaceAnswers = {false, true};
    dialog.setAction(clsCommDlg::ActionSaveAs);
    EXPECT_EQ(dialogs.replaced, QStringList({QStringLiteral("/home/list.gla"), QStringLiteral("/home/list.gla")}));
    EXPECT_EQ(dialogs.file.fileName, QStringLiteral("/home/list.gla")) << "No leads back with the name typed";
    EXPECT_EQ(dialog.FileName, QStringLiteral("/home/list.gla"));
}

TEST_F(CommDlg, CancelIsAnErrorAndLeavesTheProperties)
{
    for (const int action : {clsCommDlg::ActionOpen, clsCommDlg::ActionSaveAs, clsCommDlg::ActionPrint}) {
        prepareSave(QStringLiteral("words"));
        dialog.Copies = 7;
        EXPECT_THROW(dialog.setAction(action), CommDlgCancelled);
        EXPECT_EQ(dialog.FileName, QStringLiteral("words"));
        EXPECT_EQ(dialog.Copies, 7);
    }
    dialog.flags = clsCommDlg::PrintSetup;
    EXPECT_THROW(dialog.setAction(clsCommDlg::ActionPrint), CommDlgCancelled);
    EXPECT_NO_THROW(dialog.setAction(3));
    EXPECT_NO_THROW(dialog.setAction(4));
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(CommDlg, PrintOffersThePagesAndTakesTheChoice)
{
    dialog.MinPage = 1;
    dialog.MaxPage = 5;
    dialog.flags = 0x100014;
    dialogs.pages = PrintChoice{2, 3, 4, true, false, false};
    dialog.setAction(clsCommDlg::ActionPrint);
    EXPECT_EQ(dialogs.print.minPage, 1);
    EXPECT_EQ(dialogs.print.maxPage, 5);
    EXPECT_EQ(dialogs.print.toPage, 5);
    EXPECT_TRUE(dialogs.print.collate);
    EXPECT_TRUE(dialogs.print.offerPageNumbers);
    EXPECT_FALSE(dialogs.print.pageNumbers);
    EXPECT_FALSE(dialogs.print.offerSelection);
    EXPECT_EQ(dialog.Copies, 2);
    EXPECT_EQ(dialog.FromPage, 3);
    EXPECT_EQ(dialog.ToPage, 4);
    EXPECT_EQ(dialog.flags, 0x100006);
}

TEST_F(CommDlg, AFailingPrinterIsReportedAndThrown)
{
    dialogs.printerFault = QStringLiteral("no paper");
    EXPECT_THROW(dialog.setAction(clsCommDlg::ActionPrint), CommDlgError);
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown.front().title, QStringLiteral("Printer Error"));
    EXPECT_EQ(alerts.shown.front().prompt, QStringLiteral("no paper"));
    EXPECT_TRUE(alerts.shown.front().exclamation);
}

TEST_F(CommDlg, HelpIsCalledWithTheKeyAsANumber)
{
    dialog.HelpFile = QStringLiteral("help");
    dialog.HelpCommand = 15;
    dialog.HelpKey = QStringLiteral("1160");
    dialog.setAction(clsCommDlg::ActionHelp);
    EXPECT_EQ(dialogs.helpAsked, QStringLiteral("help 15 1160"));
    dialogs.helpThere = false;
    EXPECT_THROW(dialog.setAction(clsCommDlg::ActionHelp), CommDlgError);
}

TEST(FileFilter, BecomesThePlatformsFilters)
{
    const struct
    {
        const char *filter;
        QStringList filters;
    } cases[] = {
        {"Glosaria Document (*.gla) | *.gla", {QStringLiteral("Glosaria Document (*.gla)")}},
        {"Lists|*.gla; *.txt|All|*", {QStringLiteral("Lists (*.gla *.txt)"), QStringLiteral("All (*)")}},
        {"Lists|", {}},
        {"", {}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(FileDialogRules::nameFilters(QString::fromUtf8(c.filter)), c.filters) << c.filter;
}

/// The real dialogs over a folder of files.
class RealDialogs : public ::testing::Test
{
protected:
    QTemporaryDir folder;
    QtPrinter printer;
    QtDialogs dialogs{printer, [](const QString &, int, int) { return false; }};
    ScriptedAlertBox alerts;
    clsCommDlg dialog{dialogs, alerts};

    void SetUp() override
    {
        for (const char *name : {"small.gla", "LARGE.GLA", "other.txt"}) {
            QFile file(folder.filePath(QString::fromUtf8(name)));
            ASSERT_TRUE(file.open(QFile::WriteOnly));
        }
        dialog.InitDir = folder.path();
        dialog.Filter = QStringLiteral("Glosaria Document (*.gla) | *.gla");
        dialog.DefaultExt = QStringLiteral("gla");
    }

    /// Runs a step on the next modal window of a kind, once it is up.
    template <class Window> void onNext(std::function<void(Window &)> step)
    {
        QTimer::singleShot(0, qApp, [this, step] {
            auto *window = qobject_cast<Window *>(QApplication::activeModalWidget());
            window &&QTest::qWaitForWindowExposed(window) ? step(*window) : onNext<Window>(step);
        });
    }
};

TEST_F(RealDialogs, OpenShowsVocabulariesInCapitalsToo)
{
    dialog.flags = 0x81004;
    QStringList seen;
    onNext<QFileDialog>([&seen](QFileDialog &window) {
        auto *view = window.findChild<QAbstractItemView *>(QStringLiteral("listView"));
        EXPECT_TRUE(QTest::qWaitFor([view] { return view->model()->rowCount(view->rootIndex()) == 2; }));
        for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
            seen.append(view->model()->index(row, 0, view->rootIndex()).data().toString());
        auto *name = window.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        QTest::keyClicks(name, QStringLiteral("small"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    dialog.setAction(clsCommDlg::ActionOpen);
    EXPECT_THAT(seen, ::testing::UnorderedElementsAre(QStringLiteral("small.gla"), QStringLiteral("LARGE.GLA")));
    EXPECT_EQ(dialog.FileName, folder.filePath(QStringLiteral("small.gla")));
}

TEST_F(RealDialogs, SaveAsAsksAboutTheRealTargetAndGoesBackOnNo)
{
    dialog.FileName = QStringLiteral("Untitled 1");
    dialog.flags = 0x80406;
    onNext<QFileDialog>([this](QFileDialog &window) {
        auto *name = window.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        EXPECT_EQ(name->text(), QStringLiteral("Untitled 1.gla"));
        onNext<QMessageBox>([this](QMessageBox &box) {
            EXPECT_TRUE(box.text().contains(QStringLiteral("small.gla"))) << box.text().toStdString();
            onNext<QFileDialog>([](QFileDialog &again) {
                auto *other = again.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
                other->selectAll();
                QTest::keyClicks(other, QStringLiteral("other.txt"));
                QTest::keyClick(other, Qt::Key_Return);
            });
            QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
        });
        name->selectAll();
        QTest::keyClicks(name, QStringLiteral("small"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    dialog.setAction(clsCommDlg::ActionSaveAs);
    EXPECT_EQ(dialog.FileName, folder.filePath(QStringLiteral("other.gla")));
}

} // namespace
