#include "print/PrintCommands.h"

#include "print/PrintHost.h"
#include "support/Pixels.h"
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
    void press(Qt::Key key) { QTest::keyClick(page(), key); }
    void turnWheel(int angle)
    {
        QWheelEvent event({}, {}, {}, {0, angle}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(page(), &event);
    }
};

TEST_F(Preview, OpensAtAThirdOfTheSizeInTheMiddle)
{
    open(RowsOfPage - 1);
    EXPECT_EQ(shown(), "Page 1 of 1 264");
    EXPECT_TRUE(host.inPreview && page()->isVisible() && page()->hasFocus());
    const auto *number = host.area.findChild<QLabel *>("lblPage");
    EXPECT_EQ(number->text(), "Page 1 of 1");
    EXPECT_TRUE(number->geometry().bottomLeft() == QPoint(0, 599) && number->autoFillBackground());
    const QImage drawn = page()->grab().toImage();
    EXPECT_NEAR(inkOf(drawn.copy(2, 2, drawn.width() - 4, drawn.height() - 4), Qt::white).left(), 1300 / 45 - 2, 2);
    QSignalSpy told(&preview, &PrintPreview::statusText);
    QTest::mouseMove(page(), {50, 50});
    EXPECT_EQ(told.last().at(0), 505);
    EXPECT_EQ(page()->geometry(), QRect(450 - 132, 300 - 187 - ToolbarHeight, 264, 374));
    EXPECT_TRUE(host.frame.updatesEnabled());
    host.area.resize(600, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(page()->pos(), QPoint(300 - 132, 250 - 187 - ToolbarHeight)) << "also after a resize";
    host.area.resize(600, 400);
    QCoreApplication::processEvents();
    EXPECT_EQ(page()->y(), 0) << "a page that fits is not cut";
}

TEST_F(Preview, TurnsPagesAndZoomsKeepingThePage)
{
    open(2 * RowsOfPage + 1);
    EXPECT_EQ(shown(), "Page 1 of 3> 264");
    using Step = std::function<void()>;
    const Step next = [this] { preview.nextPage(); }, previous = [this] { preview.previousPage(); };
    const auto key = [this](Qt::Key code) -> Step { return [this, code] { press(code); }; };
    const auto wheel = [this](int angle) -> Step { return [this, angle] { turnWheel(angle); }; };
    const Step in = [this] { click(); }, out = [this] { click(Qt::ControlModifier); };
    const std::pair<Step, const char *> steps[] = {
        {next, "<Page 2 of 3> 264"},
        {next, "<Page 3 of 3 264"},
        {next, "<Page 3 of 3 264"},
        {previous, "<Page 2 of 3> 264"},
        {previous, "Page 1 of 3> 264"},
        {previous, "Page 1 of 3> 264"},
        {key(Qt::Key_PageDown), "<Page 2 of 3> 264"}, // the page is wholly visible
        {key(Qt::Key_End), "<Page 3 of 3 264"},
        {key(Qt::Key_PageUp), "<Page 2 of 3> 264"},
        {key(Qt::Key_Home), "Page 1 of 3> 264"},
        {wheel(-120), "<Page 2 of 3> 264"},
        {wheel(60), "<Page 2 of 3> 264"}, // a touchpad
        {wheel(60), "Page 1 of 3> 264"},
        {wheel(-120), "<Page 2 of 3> 264"},
        {out, "<Page 2 of 3> 264"},
        {[this] { click(Qt::NoModifier, Qt::RightButton); }, "<Page 2 of 3> 264"},
        {in, "<Page 2 of 3> 397"},
        {in, "<Page 2 of 3> 793"},
        {in, "<Page 2 of 3> 793"},
        {out, "<Page 2 of 3> 397"},
        {key(Qt::Key_Minus), "<Page 2 of 3> 264"},
        {key(Qt::Key_Plus), "<Page 2 of 3> 397"},
    };
    for (size_t i = 0; i < std::size(steps); ++i) {
        steps[i].first();
        EXPECT_EQ(shown(), steps[i].second) << i;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(host.area.findChildren<frmPrtPrev *>().size(), 1) << "however many pages";
    QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_PageDown, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(page(), &repeated);
    EXPECT_EQ(shown(), steps[21].second) << "a held key turns when it comes up";
    EXPECT_EQ(host.area.findChild<QLabel *>("lblPage")->text(), "Page 2 of 3");
}

TEST_F(Preview, PageKeysScrollALargePageAndThenTurnIt)
{
    open(2 * RowsOfPage + 1);
    click();
    click();
    ASSERT_EQ(page()->height(), 1123);
    constexpr int Start = 300 - 561 - ToolbarHeight;
    constexpr int Bottom = 600 - 133 - 1123; // 2000 twips above the lower edge
    EXPECT_EQ(page()->y(), Start);
    const std::tuple<Qt::Key, int, int> steps[] = {
        {Qt::Key_PageDown, 0, Bottom},  {Qt::Key_PageUp, 0, Bottom + 550}, // the end would pass over something unseen
        {Qt::Key_PageUp, 0, 7},         {Qt::Key_PageUp, 0, 7},            // there is no page before
        {Qt::Key_PageDown, 0, 7 - 550}, {Qt::Key_PageDown, 1, Start},
        {Qt::Key_PageUp, 1, 7},         {Qt::Key_PageUp, 0, 7 - 550}, // where it was left
    };
    for (const auto &[key, shown, top] : steps) {
        press(key);
        EXPECT_EQ(std::pair(preview.visiblePage(), page()->y()), std::pair(shown, top));
    }
    press(Qt::Key_Right);
    EXPECT_EQ(page()->x(), 450 - 396) << "nothing is hidden at the sides";
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
        press(Qt::Key_Right);
    EXPECT_EQ(page()->geometry().right(), 899);
    const int top = page()->y();
    for (const auto &[key, left, y] : {std::tuple(Qt::Key_Down, 899 - page()->width() + 1, top - 50),
                                       {Qt::Key_Up, 899 - page()->width() + 1, top},
                                       {Qt::Key_Left, 900 - page()->width() + 50, top}}) {
        press(key);
        EXPECT_EQ(page()->pos(), QPoint(left, y)) << key;
    }
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
    press(Qt::Key_Escape);
    EXPECT_FALSE(host.inPreview || preview.isOpen() || page());
}

TEST_F(Preview, PrintsPagesAndCopiesAsChosenInOneJob)
{
    const std::pair<PrintChoice, std::vector<int>> cases[] = {
        {{2, 2, 2, false, false, false}, {1, 1, 2, 2}},
        {{1, 2, 2, true, false, true}, {2}},
        {{1, 1, 2, false, false, true}, {1, 2}}, // a range does not outlive its run
    };
    const PrintSource source = sourceOf(RowsOfPage + 1);
    commands.PrintDocument(source); // cancelled
    EXPECT_TRUE(printer.sheets.empty() && alerts.shown.empty() && host.status.isEmpty());
    for (const auto &[choice, sheets] : cases) {
        printer.sheets.clear();
        printer.jobs = 0;
        dialogs.pages = choice;
        commands.PrintDocument(source);
        EXPECT_EQ(printer.pageNumbers(), sheets);
        EXPECT_EQ(printer.jobs, 1);
    }
    EXPECT_EQ(host.status.first(), "Printing page 1");
    EXPECT_EQ(host.status.last(), "Ready");
    EXPECT_EQ(dialogs.print.maxPage, 2);
    EXPECT_TRUE(dialogs.print.owner == &host.frame && dialogs.print.collate && !dialogs.print.offerSelection);
    EXPECT_EQ(printer.docName, "Glosaria - Words");
    printer.sheets.clear();
    printer.failingSheet = 2;
    commands.PrintDocument(source);
    EXPECT_EQ(printer.sheets.size(), 1U);
    EXPECT_EQ(alerts.onlyPrompt(), "out of paper");
    EXPECT_TRUE(host.frame.updatesEnabled() && !QApplication::overrideCursor());
}

TEST_F(Preview, TheProgramAnswersDuringALongRunThatCanBeCancelled)
{
    const std::tuple<std::function<void(QDialog &)>, int, size_t> cases[] = {
        {[](QDialog &) {}, 0, 8},
        {[](QDialog &box) { box.findChild<QPushButton *>("btnCancel")->click(); }, 1, 3},
        {[](QDialog &box) { box.close(); }, 1, 3}, // as when the program is told to end
    };
    dialogs.pages = PrintChoice{1, 1, 8, false, false, true};
    for (const auto &[step, killed, sheets] : cases) {
        printer = {};
        printer.duringSheet = [&] {
            QTest::qSleep(printer.sheets.size() == 1 ? 310 : 40); // the box shows after the first
            if (printer.sheets.size() != 2)
                return;
            QTimer::singleShot(0, &host.frame, [&] {
                auto &box = dynamic_cast<QDialog &>(*QApplication::activeModalWidget());
                EXPECT_TRUE(host.frame.updatesEnabled());
                EXPECT_EQ(box.findChild<QLabel *>("lblPage")->text(), "Printing page 2");
                EXPECT_EQ(box.findChild<QProgressBar *>()->value(), 2);
                step(box);
            });
        };
        commands.PrintDocument(sourceOf(8 * RowsOfPage - 1));
        EXPECT_EQ(std::tuple(printer.jobs, printer.killed), std::tuple(1 - killed, killed));
        EXPECT_EQ(printer.sheets.size(), sheets);
        EXPECT_EQ(host.status.last(), "Ready");
        EXPECT_FALSE(QApplication::overrideCursor());
    }
    EXPECT_TRUE(alerts.shown.empty());
}
