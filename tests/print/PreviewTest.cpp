#include "print/PrintCommands.h"

#include "print/PrintHost.h"
#include "support/RecordingPrinter.h"
#include "support/ScriptedAlertBox.h"
#include "support/ScriptedDialogs.h"

#include <QSignalSpy>

namespace {

constexpr int RowsOfPage = 49;
constexpr int ToolbarHeight = 40;

class MainWindow : public PrintHost
{
public:
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
class Preview : public ::testing::Test
{
protected:
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
        auto source = std::make_unique<PairSource>();
        source->fill(rows);
        commands.ShowPrintPreview(std::move(source));
    }
    frmPrtPrev *page() const { return preview.pageWindow(); }
    QList<bool> buttonStates() const { return {buttons.last().at(0).toBool(), buttons.last().at(1).toBool()}; }
    void click(Qt::KeyboardModifiers modifiers = Qt::NoModifier, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(page(), button, modifiers, page()->rect().center());
    }
    void press(int key) { QTest::keyClick(page(), Qt::Key(key)); }
};

TEST_F(Preview, OpensAtAThirdOfTheSizeInTheMiddle)
{
    open(3 * RowsOfPage + 1);
    EXPECT_TRUE(host.inPreview);
    EXPECT_EQ(preview.visiblePage(), 0);
    EXPECT_TRUE(page()->isVisible());
    EXPECT_TRUE(page()->hasFocus());
    const QSize third(264, 374); // 11900 and 16840 twips by 3, at 15 twips a pixel
    EXPECT_EQ(page()->size(), third);
    EXPECT_EQ(page()->pos(), QPoint(450 - 132, 300 - 187 - ToolbarHeight));
    EXPECT_EQ(buttonStates(), QList<bool>({false, true}));
    EXPECT_TRUE(host.frame.updatesEnabled());
}

TEST_F(Preview, OnePageHasNothingToTurnTo)
{
    open(5);
    EXPECT_EQ(buttonStates(), QList<bool>({false, false}));
    preview.nextPage();
    preview.previousPage();
    EXPECT_EQ(preview.visiblePage(), 0);
}

TEST_F(Preview, TurnsPagesToTheEndAndBack)
{
    open(2 * RowsOfPage + 1);
    const struct
    {
        void (PrintPreview::*turn)();
        int page;
        QList<bool> buttons;
    } steps[] = {
        {&PrintPreview::nextPage, 1, {true, true}},      {&PrintPreview::nextPage, 2, {true, false}},
        {&PrintPreview::nextPage, 2, {true, false}},     {&PrintPreview::previousPage, 1, {true, true}},
        {&PrintPreview::previousPage, 0, {false, true}}, {&PrintPreview::previousPage, 0, {false, true}},
    };
    for (const auto &step : steps) {
        (preview.*step.turn)();
        EXPECT_EQ(preview.visiblePage(), step.page);
        EXPECT_EQ(buttonStates(), step.buttons);
        EXPECT_EQ(page()->accessibleName(), QStringLiteral("Page %1 of 3").arg(step.page + 1));
    }
}

TEST_F(Preview, ClicksZoomAndKeepThePage)
{
    open(4 * RowsOfPage);
    preview.nextPage();
    const struct
    {
        Qt::KeyboardModifiers modifiers;
        Qt::MouseButton button;
        double divisor;
    } clicks[] = {
        {Qt::ControlModifier, Qt::LeftButton, 3}, {Qt::NoModifier, Qt::RightButton, 3},
        {Qt::NoModifier, Qt::LeftButton, 2},      {Qt::NoModifier, Qt::LeftButton, 1},
        {Qt::NoModifier, Qt::LeftButton, 1},      {Qt::ControlModifier, Qt::LeftButton, 2},
        {Qt::ControlModifier, Qt::LeftButton, 3},
    };
    for (const auto &c : clicks) {
        click(c.modifiers, c.button);
        EXPECT_EQ(preview.zoomDivisor(), c.divisor);
        EXPECT_EQ(page()->width(), qRound(11900 / c.divisor / 15));
        EXPECT_EQ(preview.visiblePage(), 1);
        EXPECT_EQ(buttonStates(), QList<bool>({true, true}));
    }
}

TEST_F(Preview, PageKeysScrollALargePageAndThenTurnIt)
{
    open(2 * RowsOfPage + 1);
    click();
    click();
    ASSERT_EQ(page()->height(), 1123);
    EXPECT_EQ(page()->y(), 300 - 561 - ToolbarHeight);
    press(Qt::Key_PageDown);
    EXPECT_EQ(page()->y(), 600 - 133 - 1123);
    press(Qt::Key_PageUp); // the end would be out of sight
    EXPECT_EQ(page()->y(), 600 - 133 - 1123 + 550);
    press(Qt::Key_PageUp);
    EXPECT_EQ(page()->y(), 7);
    press(Qt::Key_PageUp); // there is no page before
    EXPECT_EQ(page()->y(), 7);
    press(Qt::Key_PageDown);
    EXPECT_EQ(page()->y(), 7 - 550);
    press(Qt::Key_PageDown);
    EXPECT_EQ(preview.visiblePage(), 1);
    EXPECT_EQ(page()->y(), 300 - 561 - ToolbarHeight);
    press(Qt::Key_PageUp);
    press(Qt::Key_PageUp);
    EXPECT_EQ(preview.visiblePage(), 0);
    EXPECT_EQ(page()->y(), 7 - 550) << "where it was left";
}

TEST_F(Preview, PageKeysTurnPagesThatFit)
{
    open(2 * RowsOfPage + 1);
    press(Qt::Key_PageDown);
    EXPECT_EQ(preview.visiblePage(), 1);
    press(Qt::Key_End);
    EXPECT_EQ(preview.visiblePage(), 2);
    press(Qt::Key_PageUp);
    EXPECT_EQ(preview.visiblePage(), 1);
    press(Qt::Key_Home);
    EXPECT_EQ(preview.visiblePage(), 0);
}

TEST_F(Preview, AWidePageStartsNearTheEdgeAndScrollsSideways)
{
    printer.width = 16840;
    printer.height = 11900;
    open(5);
    click();
    click();
    EXPECT_EQ(page()->x(), 3) << "45 twips";
    for (int i = 0; i < 20; ++i)
        press(Qt::Key_Right);
    EXPECT_EQ(page()->x() + page()->width(), 900);
}

TEST_F(Preview, AMovingMouseExplainsTheClicks)
{
    open(5);
    QSignalSpy status(&preview, &PrintPreview::statusText);
    QTest::mouseMove(page(), QPoint(20, 20));
    QTest::mouseMove(page(), QPoint(30, 30));
    ASSERT_FALSE(status.isEmpty());
    EXPECT_EQ(status.last().at(0).toInt(), 505);
}

TEST_F(Preview, PageSetupBuildsItAgainFromTheFirstPage)
{
    open(2 * RowsOfPage + 1);
    preview.nextPage();
    commands.PageSetup(); // cancelled
    EXPECT_EQ(preview.visiblePage(), 1);
    dialogs.duringSetup = [this] { std::swap(printer.width, printer.height); };
    commands.PageSetup();
    EXPECT_EQ(preview.visiblePage(), 0);
    EXPECT_EQ(page()->size(), QSize(374, 264));
    EXPECT_EQ(preview.zoomDivisor(), 3.0);
    preview.nextPage();
    EXPECT_EQ(page()->accessibleName(), QStringLiteral("Page 2 of 4"));
}

TEST_F(Preview, PrintingKeepsSizeAndPage)
{
    open(2 * RowsOfPage + 1);
    click();
    preview.nextPage();
    dialogs.pages = PrintChoice{2, 1, 3, false, false, true};
    commands.printPreviewed();
    EXPECT_EQ(dialogs.print.maxPage, 3);
    EXPECT_EQ(printer.pageNumbers(), std::vector<int>({1, 2, 3, 1, 2, 3}));
    EXPECT_EQ(printer.sheets.front().find(QStringLiteral("one 1"))->font.Size, 10);
    EXPECT_EQ(preview.visiblePage(), 1);
    EXPECT_EQ(preview.zoomDivisor(), 2.0);
    EXPECT_EQ(page()->width(), 397);
}

TEST_F(Preview, ClosingGivesTheWindowBack)
{
    open(5);
    QSignalSpy closed(&preview, &PrintPreview::closed);
    press(Qt::Key_Escape);
    EXPECT_FALSE(host.inPreview);
    EXPECT_FALSE(preview.isOpen());
    EXPECT_EQ(closed.size(), 1);
    EXPECT_FALSE(page());
    preview.close();
    EXPECT_EQ(closed.size(), 1);
}

TEST_F(Preview, AThousandPagesHaveOneWindow)
{
    open(100000);
    for (int i = 0; i < 5; ++i)
        preview.nextPage();
    click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(host.area.findChildren<frmPrtPrev *>().size(), 1);
    EXPECT_EQ(page()->accessibleName(), QStringLiteral("Page 6 of 2041"));
}

TEST_F(Preview, AResizedWindowPlacesThePageAgain)
{
    open(5);
    host.area.resize(600, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(page()->pos(), QPoint(300 - 132, 250 - 187 - ToolbarHeight));
}

TEST_F(Preview, PaperIsWhiteAndTextDarkInADarkPalette)
{
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    host.frame.setPalette(dark);
    open(5);
    click();
    click();
    const QImage image = page()->grab().toImage();
    EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::white));
    // The title line is black, the words are red as the document's are.
    const auto darkest = [&image](const QRect &area) {
        QColor found(Qt::white);
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (image.pixelColor(x, y).lightness() < found.lightness())
                    found = image.pixelColor(x, y);
            }
        }
        return found;
    };
    EXPECT_LT(darkest(QRect(100, 66, 150, 16)).lightness(), 60);
    const QColor word = darkest(QRect(117, 148, 40, 16));
    EXPECT_GT(word.red(), 150);
    EXPECT_LT(word.green(), 120);
}

class Printing : public Preview
{
protected:
    PairSource source;
};

TEST_F(Printing, PrintsPagesAndCopiesAsChosen)
{
    const struct
    {
        PrintChoice choice;
        std::vector<int> sheets;
    } cases[] = {
        {{1, 1, 2, false, false, true}, {1, 2}},        {{2, 1, 2, false, false, true}, {1, 2, 1, 2}},
        {{2, 1, 2, false, false, false}, {1, 1, 2, 2}}, {{1, 2, 2, true, false, true}, {2}},
        {{1, 1, 2, false, false, true}, {1, 2}}, // a range does not outlive its run
    };
    source.fill(RowsOfPage + 1);
    for (const auto &c : cases) {
        printer.sheets.clear();
        printer.jobs = 0;
        host.status.clear();
        dialogs.pages = c.choice;
        commands.PrintDocument(source);
        EXPECT_EQ(printer.pageNumbers(), c.sheets);
        EXPECT_EQ(printer.jobs, 1) << "one job, however many copies";
        ASSERT_EQ(host.status.size(), qsizetype(c.sheets.size()) + 1);
        EXPECT_EQ(host.status.first(), QStringLiteral("Printing page %1").arg(c.sheets.front()));
        EXPECT_EQ(host.status.last(), QStringLiteral("Ready"));
    }
    EXPECT_EQ(dialogs.print.minPage, 1);
    EXPECT_EQ(dialogs.print.maxPage, 2);
    EXPECT_EQ(printer.docName, QStringLiteral("Glosaria - Words"));
    EXPECT_TRUE(host.frame.updatesEnabled());
}

TEST_F(Printing, CancelPrintsNothingAndSaysNothing)
{
    source.fill(5);
    commands.PrintDocument(source);
    EXPECT_TRUE(printer.sheets.empty());
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_TRUE(host.status.isEmpty());
}

TEST_F(Printing, APrinterThatFailsInTheMiddleIsReported)
{
    source.fill(5 * RowsOfPage);
    dialogs.pages = PrintChoice{3, 1, 6, false, false, true};
    printer.failingSheet = 4;
    commands.PrintDocument(source);
    EXPECT_EQ(printer.sheets.size(), 3U);
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown.front().title, QStringLiteral("Printer Error"));
    EXPECT_EQ(alerts.shown.front().prompt, QStringLiteral("out of paper"));
    EXPECT_TRUE(host.frame.updatesEnabled());
    EXPECT_FALSE(QApplication::overrideCursor());
}

} // namespace
