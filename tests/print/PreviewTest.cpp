#include "print/PrintCommands.h"

#include "print/BusyWindow.h"
#include "print/PrintHost.h"
#include "support/RecordingPrinter.h"
#include "support/ScriptedAlertBox.h"
#include "support/ScriptedDialogs.h"

constexpr int RowsOfPage = 49;
constexpr int ToolbarHeight = 40;

struct MainWindow : PrintHost
{
    QWidget frame;
    QWidget area{&frame};
    QStringList status;
    bool inPreview = false;

    MainWindow()
    {
        frame.resize(900, 700);
        area.setGeometry(0, 60, 900, 600);
    }
    QWidget *window() override { return &frame; }
    QWidget *clientArea() override { return &area; }
    int toolbarHeight() const override { return ToolbarHeight; }
    void showStatus(const QString &text) override { status.append(text); }
    void enterPreview() override { inPreview = true; }
    void leavePreview() override { inPreview = false; }
};

/// The preview of a vocabulary, operated with keys and mouse.
struct Preview : ::testing::Test
{
    MainWindow host;
    RecordingPrinter printer;
    ScriptedDialogs dialogs;
    ScriptedAlertBox alerts;
    PrintCommands commands{printer, dialogs, alerts, host};
    PrintPreview &preview = commands.preview();
    QSignalSpy buttons{&preview, &PrintPreview::buttonsChanged};

    void open(int rows)
    {
        host.frame.show();
        host.frame.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&host.frame));
        commands.ShowPrintPreview(sourceOf(rows));
    }
    frmPrtPrev *page() const { return preview.pageWindow(); }
    /// The page on view, with a sign for each button that leads to another, and its width.
    QString shown() const
    {
        return (buttons.last().at(0).toBool() ? "<" : "") + page()->accessibleName() +
               (buttons.last().at(1).toBool() ? "> " : " ") + QString::number(page()->width());
    }
    void click(Qt::KeyboardModifiers modifiers = Qt::NoModifier, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(page(), button, modifiers, page()->rect().center());
    }
    void turnWheel(int angle)
    {
        QWheelEvent event({}, {}, {}, {0, angle}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(page(), &event);
    }
    const Actions actions{
        {"next", [this] { preview.nextPage(); }},
        {"previous", [this] { preview.previousPage(); }},
        {"click", [this] { click(); }},
        {"control-click", [this] { click(Qt::ControlModifier); }},
        {"right-click", [this] { click(Qt::NoModifier, Qt::RightButton); }},
        {"leave", [this] { page()->clearFocus(); }},
        {"notch down", [this] { turnWheel(-120); }},
        {"half a notch up", [this] { turnWheel(60); }},
    };
};

TEST_F(Preview, OpensAtAThirdOfTheSizeInTheMiddle)
{
    open(RowsOfPage - 1);
    EXPECT_EQ(shown(), "Page 1 of 1 264");
    EXPECT_TRUE(host.inPreview && page()->isVisible() && page()->hasFocus());
    const auto *number = host.area.findChild<QLabel *>("lblPage");
    EXPECT_EQ(number->geometry(), QRect(0, 578, 76, 22));
    const QImage drawn = page()->grab().toImage();
    EXPECT_NEAR(inkOf(drawn.copy(2, 2, drawn.width() - 4, drawn.height() - 4), Qt::white).left(), 1300 / 45 - 2, 2);
    QSignalSpy told(&preview, &PrintPreview::statusText);
    QTest::mouseMove(page(), {40, 40});
    QTest::mouseMove(page(), {50, 50});
    EXPECT_EQ(told.last().at(0), 505);
    EXPECT_EQ(page()->geometry(), QRect(450 - 132, 300 - 187 - ToolbarHeight, 264, 374));
    {
        const BusyWindow busy(&host.frame);
        EXPECT_TRUE(!host.frame.updatesEnabled() && QApplication::overrideCursor()->shape() == Qt::WaitCursor);
    }
    EXPECT_TRUE(host.frame.updatesEnabled());
    host.area.resize(600, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(page()->pos(), QPoint(300 - 132, 250 - 187 - ToolbarHeight)) << "also after a resize";
    EXPECT_EQ(number->geometry().bottomLeft(), QPoint(0, 499));
    host.area.resize(600, 400);
    QCoreApplication::processEvents();
    EXPECT_EQ(page()->y(), 0) << "a page that fits is not cut";
    host.area.resize(600, 250);
    QCoreApplication::processEvents();
    play("PgDown -> -257, PgUp -> -27, PgUp -> 21", [this] { return QString::number(page()->y()); });
}

TEST_F(Preview, TurnsPagesAndZoomsKeepingThePage)
{
    open(2 * RowsOfPage + 1);
    playFile(
        SOURCE_FOLDER "/tests/print/data/turning.txt", [this] { return shown() + (page()->hasFocus() ? "" : " left"); },
        actions);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(host.area.findChildren<frmPrtPrev *>().size(), 1) << "however many pages";
    QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_PageDown, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(page(), &repeated);
    EXPECT_EQ(shown(), "<Page 2 of 3> 397") << "a held key turns when it comes up";
    EXPECT_EQ(host.area.findChild<QLabel *>("lblPage")->text(), "Page 2 of 3");
}

TEST_F(Preview, PageKeysScrollALargePageAndThenTurnIt)
{
    open(2 * RowsOfPage + 1);
    click();
    click();
    ASSERT_EQ(page()->height(), 1123);
    auto *number = host.area.findChild<QLabel *>("lblPage");
    EXPECT_EQ(host.area.childAt(number->geometry().bottomRight()), page()) << "below the number";
    EXPECT_EQ(host.area.grab(number->geometry()).toImage().pixelColor(75, 1), host.area.palette().window().color());
    EXPECT_EQ(page()->pos(), QPoint(450 - 396, 300 - 561 - ToolbarHeight));
    // Scrolled to its end it stands 2000 twips above the lower edge. The key does not pass over what was not seen,
    // nothing is hidden at the sides, and a page is where it was left.
    play("PgDown -> 0 54 -656, PgUp -> 0 54 -106, PgUp -> 0 54 7, PgUp -> 0 54 7, PgDown -> 0 54 -543, "
         "PgDown -> 1 54 -301, PgUp -> 1 54 7, PgUp -> 0 54 -543, Right -> 0 54 -543",
         [this] { return QString("%1 %2 %3").arg(preview.visiblePage()).arg(page()->x()).arg(page()->y()); });
    click(Qt::ControlModifier);
    EXPECT_EQ(page()->y(), 0) << "another size begins at the top";
}

TEST_F(Preview, PageSetupBuildsItAgainFromTheFirstPage)
{
    dialogs.duringSetup = [] {};
    commands.PageSetup(); // before there is anything to build
    dialogs.duringSetup = {};
    open(2 * RowsOfPage + 1);
    preview.nextPage();
    commands.PageSetup(); // cancelled
    EXPECT_EQ(preview.visiblePage(), 1);
    dialogs.duringSetup = [this] { printer.size.transpose(); };
    commands.PageSetup();
    EXPECT_EQ(shown(), "Page 1 of 4> 374");
    click();
    click();
    EXPECT_EQ(page()->x(), 3) << "45 twips: the page is wider than the area";
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(page(), Qt::Key_Right);
    EXPECT_EQ(page()->geometry().right(), 899);
    play(
        "Down -> -223 -186, notch down -> -223 -246, Up -> -223 -196, Left -> -173 -196, Left -> -123 -196, Left -> "
        "-73 -196, "
        "Left -> -23 -196, Left -> 0 -196",
        [this] { return QString("%1 %2").arg(page()->x()).arg(page()->y()); }, actions);
}

TEST_F(Preview, PrintingKeepsSizeAndPageButTakesItsPaper)
{
    open(2 * RowsOfPage + 1);
    click();
    preview.nextPage();
    dialogs.pages = PrintChoice{2, 1, 3, false, false, true};
    dialogs.duringPrint = [this] { printer.size.transpose(); };
    const QImage before = page()->grab().toImage();
    printer.duringSheet = [&] { EXPECT_EQ(page()->grab().toImage(), before); };
    commands.printPreviewed();
    EXPECT_EQ(printer.pageNumbers(), std::vector<int>({1, 2, 3, 4, 1, 2, 3, 4}));
    EXPECT_EQ(printer.sheets.front().find("one 1")->font.Size, 10);
    EXPECT_EQ(shown(), "<Page 2 of 4> 561");
    QTest::keyClick(page(), Qt::Key_Escape);
    EXPECT_FALSE(host.inPreview || preview.isOpen() || page());
    open(1);
    EXPECT_EQ(shown(), "Page 1 of 1 374") << "at a third again";
}

TEST_F(Preview, PrintsPagesAndCopiesAsChosenInOneJob)
{
    // copies, pages, collated; what the printer's dialog listed, whether its last page comes first; what is printed
    const std::tuple<PrintChoice, QList<int>, bool, std::vector<int>> cases[] = {
        {{1, 2, 3, false, false, true}, {}, false, {1, 2, 3, 4, 5}},
        {{1, 4, 9, true, false, true}, {}, false, {4, 5}},
        {{1, 2, 5, true, false, true}, {2, 5, 9}, false, {2, 5}},
        {{1, 1, 3, true, false, true}, {}, true, {3, 2, 1}},
        {{2, 1, 2, true, false, true}, {}, false, {1, 2, 1, 2}},
        {{2, 1, 2, true, false, false}, {}, false, {1, 1, 2, 2}},
    };
    PrintSource source = sourceOf(4 * RowsOfPage + 10);
    source.Folder = "/ann";
    commands.PrintDocument(source); // cancelled
    EXPECT_TRUE(printer.sheets.empty() && alerts.shown.empty() && host.status.isEmpty());
    for (const auto &[choice, listed, reverse, numbers] : cases) {
        printer = {};
        std::tie(printer.wanted, printer.reverse) = std::tie(listed, reverse);
        dialogs.pages = choice;
        commands.PrintDocument(source);
        for (const int number : numbers)
            EXPECT_EQ(host.status.takeFirst(), "Printing page " + QString::number(number));
        EXPECT_EQ(std::tuple(printer.pageNumbers(), printer.jobs, host.status.takeFirst()),
                  std::tuple(numbers, 1, QString("Ready")));
    }
    const PrintRequest &asked = dialogs.print;
    EXPECT_EQ(std::pair(asked.minPage, asked.maxPage), std::pair(1, 5));
    EXPECT_TRUE(asked.folder == "/ann" && asked.owner == &host.frame && asked.collate && !asked.offerSelection);
    EXPECT_EQ(printer.docName, "Glosaria - Words");
    printer.sheets.clear();
    printer.failingSheet = 2;
    commands.PrintDocument(source);
    dialogs.pages = PrintChoice{1, 6, 9, true, false, true};
    commands.PrintDocument(source);
    EXPECT_EQ(printer.sheets.size(), 1U);
    EXPECT_EQ(alerts.shown[0].prompt + alerts.shown[1].prompt,
              "out of paperNone of these pages exists. The last page is 5.");
    EXPECT_TRUE(host.frame.updatesEnabled() && !QApplication::overrideCursor());
}

TEST_F(Preview, TheProgramAnswersDuringALongRunThatCanBeCancelled)
{
    const std::tuple<std::function<void(QDialog &)>, int, int, size_t> cases[] = {
        {[](QDialog &) {}, 1, 0, 8},
        {[this](QDialog &) { printer.failingSheet = 4; }, 0, 0, 3},
        {[](QDialog &box) { box.findChild<QPushButton *>("btnCancel")->click(); }, 0, 1, 3},
        {[](QDialog &box) { box.close(); }, 0, 1, 3}, // as when the program is told to end
    };
    dialogs.pages = PrintChoice{1, 1, 8, false, false, true};
    for (const auto &[step, jobs, killed, sheets] : cases) {
        printer = {};
        printer.duringSheet = [&] {
            QTest::qSleep(printer.sheets.size() == 1 ? 310 : 40); // the box shows after the first
            if (printer.sheets.size() != 2)
                return;
            QTimer::singleShot(0, &host.frame, [&] {
                auto &box = dynamic_cast<QDialog &>(*QApplication::activeModalWidget());
                EXPECT_TRUE(host.frame.updatesEnabled());
                EXPECT_EQ(::shown(box) + box.findChild<QProgressBar *>()->text(),
                          "Printing | Printing page 2 | >Cancel25%");
                EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
                step(box);
            });
        };
        commands.PrintDocument(sourceOf(8 * RowsOfPage - 1));
        EXPECT_EQ(std::tuple(printer.jobs, printer.killed, printer.sheets.size()), std::tuple(jobs, killed, sheets));
        EXPECT_EQ(host.status.last(), "Ready");
        EXPECT_FALSE(QApplication::overrideCursor());
    }
    EXPECT_EQ(alerts.onlyPrompt(), "out of paper");
}
