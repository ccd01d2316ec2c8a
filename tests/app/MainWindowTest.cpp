#include "MainWindowFixture.h"

#include "document/ctlGridEdit.h"
#include "platform/Twips.h"

struct MainWindowTest : MainWindowFixture
{
    /// Drags a file onto what lies at the place, the window itself unless told, and drops it.
    void drop(const QString &path, int y, QWidget *onto = nullptr)
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(QPoint(300, y), offered, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(onto ? onto : window.get(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(300, y), offered, &data, Qt::LeftButton, Qt::ShiftModifier);
        event.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(window.get(), &event);
        EXPECT_EQ(event.dropAction(), Qt::CopyAction);
        QCoreApplication::processEvents();
    }
};

TEST_F(MainWindowTest, DocumentsAreCascadedTiledAndLinedUpAsIconsFromBothSides)
{
    DocumentArea &area = *window->documentArea();
    window->resize(window->size() + QSize(900, 600) - area.viewport()->size());
    for (int i = 0; i < 3; ++i) {
        const frmDoc &made = *newDocument();
        EXPECT_EQ(made.Rutor()->ColWidth(1), Twips::fromPixelsX(made.Rutor()->width()) / 2 - 360);
    }
    const int step = documents().open()[1]->frame()->x();
    EXPECT_GT(step, 15);
    const int beside = window->toolbarHeight() + window->context().status.height();
    EXPECT_TRUE(area.size() == window->size() - QSize(0, beside) && area.mapTo(window.get(), QPoint()).x() == 0);
    const auto places = [this] {
        QStringList found;
        for (const frmDoc *each : documents().open()) {
            const QRect at = each->frame()->geometry();
            found += QString("%1,%2 %3x%4").arg(at.x()).arg(at.y()).arg(at.width()).arg(at.height());
        }
        return found.join(" | ");
    };
    const QString cascade = QString("%1,0 675x450 | %2,%4 675x450 | %3,%5 675x450"),
                  rows = "0,0 900x200 | 0,200 900x200 | 0,400 900x200";
    const QString atLeft = cascade.arg(0).arg(step).arg(2 * step).arg(step).arg(2 * step);
    const QString atRight = cascade.arg(225).arg(225 - step).arg(225 - 2 * step).arg(step).arg(2 * step);
    EXPECT_EQ(places(), atLeft);
    for (const bool right : {false, true}) {
        area.setLayoutDirection(right ? Qt::RightToLeft : Qt::LeftToRight);
        documents().open()[1]->frame()->showMaximized();
        const QString columns =
            right ? "600,0 300x600 | 300,0 300x600 | 0,0 300x600" : "0,0 300x600 | 300,0 300x600 | 600,0 300x600";
        for (const auto &[command, expected] :
             {std::pair("mnuWindow(2)", columns), {"mnuWindow(1)", rows}, {"mnuWindow(0)", right ? atRight : atLeft}}) {
            window->DoMenuClick(command);
            EXPECT_EQ(places().toStdString(), expected.toStdString());
        }
    }
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(area.subWindowList(QMdiArea::StackingOrder)[i]->widget(), documents().open()[size_t(i)]);
    window->resize(window->width() + 70, window->height());
    EXPECT_EQ(documents().open()[0]->frame()->x(), 225 + 70);
    QSet<int> heights;
    for (int i = 0; i < 30; ++i) {
        const QRect place = newDocument()->frame()->geometry();
        heights += place.y();
        EXPECT_TRUE(area.viewport()->rect().contains(place));
    }
    EXPECT_EQ(heights.size(), 150 / step + 1) << "as far down as there is room";
    area.setLayoutDirection(Qt::LeftToRight);
    for (const frmDoc *each : documents().open())
        each->frame()->showMinimized();
    documents().open().back()->frame()->showNormal();
    const QRect open = documents().open().back()->frame()->geometry();
    window->DoMenuClick("mnuWindow(3)");
    const QSize icon = documents().open()[0]->frame()->size();
    const int perRow = 970 / icon.width();
    for (int i = 0; i < 32; ++i)
        EXPECT_EQ(documents().open()[size_t(i)]->frame()->pos(),
                  QPoint(i % perRow * icon.width(), 600 - (i / perRow + 1) * icon.height()));
    EXPECT_EQ(documents().open().back()->frame()->geometry(), open) << "open ones are left alone";
}

TEST_F(MainWindowTest, RecentFilesAreKeptFromRunToRun)
{
    const QString one = writeVocabulary("one.gla");
    window->OpenRequestedFile(one);
    window->OpenRequestedFile('"' + writeVocabulary("two & more.gla") + '"');
    window->close();
    SetUp();
    const QString file = entries("mnuFile").join('|').replace(QRegularExpression("\\|(\\d) [^|]*/"), "|\\1 ");
    EXPECT_EQ(file.toStdString(), "New|Open...|-|1 two  more.gla|2 one.gla|-|Exit");
    window->DoMenuClick("mnuFileMRU(2)");
    EXPECT_EQ(documents().open().at(0)->DocName(), one);
}

TEST_F(MainWindowTest, OnlyVocabulariesDroppedOnTheDocumentAreaOpen)
{
    const QString file = writeVocabulary("dropped.GLA");
    EXPECT_TRUE(window->acceptDrops());
    const int top = window->documentArea()->mapTo(window.get(), QPoint()).y();
    const int bottom = window->height() - window->context().status.height() - 52;
    for (const int beside : {top, bottom})
        drop(file, beside);
    drop(folder.filePath("notes.txt"), window->height() / 2);
    EXPECT_TRUE(documents().open().empty() && alert.shown.empty());
    ctlGrid &grid = *newDocument()->Rutor();
    grid.setEditMode(true);
    drop(file, top + 1, grid.hwndText());
    EXPECT_EQ(documents().open().size(), 2u);
    EXPECT_EQ(grid.EditText(), "");
}

TEST_F(MainWindowTest, ItsPlaceIsRestoredOrReplacedByTheWorkArea)
{
    const int workArea = QGuiApplication::primaryScreen()->availableGeometry().width() * 15;
    EXPECT_EQ(settings.WinPosRight(), workArea) << "the first run covers the work area";
    window->setGeometry(40, 30, 700, 500);
    const QRect place = window->frameGeometry();
    window->close();
    clsAppProperties stored(store, QString());
    stored.ReadProperties();
    EXPECT_EQ(QRect(stored.WinPosLeft(), stored.WinPosTop(), stored.WinPosRight(), stored.WinPosBottom()),
              QRect(place.topLeft() * 15, place.size() * 15));
    SetUp();
    EXPECT_EQ(window->pos(), place.topLeft());
    window->showMaximized();
    window->close();
    SetUp();
    EXPECT_TRUE(window->isMaximized());
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    const std::tuple<int, QRect, QRect> cases[] = {
        // a state, a place, and where the window lies then
        {0, {50, 40, 600, 400}, {50, 40, 600, 400}},   {0, {50, 40, 9999, 9998}, {QPoint(50, 40), screen}},
        {1, {50, 40, 600, 400}, {QPoint(), screen}},   {7, {50, 40, 600, 400}, {QPoint(), screen}},
        {0, {-900, 40, 600, 400}, {QPoint(), screen}}, {0, {50, 9000, 600, 400}, {QPoint(), screen}}};
    for (const auto &[state, at, expected] : cases) {
        settings.setAppWinState(state);
        settings.setWinPosLeft(at.x() * 15), settings.setWinPosTop(at.y() * 15);
        settings.setWinPosRight(at.width() * 15), settings.setWinPosBottom(at.height() * 15);
        window->PositionWindow();
        EXPECT_EQ(QRect(window->pos(), window->size()), expected);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->frameSize() == screen; })) << "there is room for its frame";
    window->showMinimized();
    window->close();
    EXPECT_EQ(settings.AppWinState(), 1);
    window->bringToFront();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()) && !window->isMinimized());
}
