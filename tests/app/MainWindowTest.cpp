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

TEST_F(MainWindowTest, NewDocumentsCascadeInsideTheAreaAndTheirColumnsFillThem)
{
    QPoint last(-1, -1);
    for (int i = 0; i < 30; ++i) {
        frmDoc &document = *newDocument();
        const QRect place = document.frame()->geometry();
        EXPECT_TRUE(window->documentArea()->viewport()->rect().contains(place)) << i;
        EXPECT_NE(place.topLeft(), std::exchange(last, place.topLeft())) << i;
        EXPECT_EQ(document.Rutor()->ColWidth(1), Twips::fromPixelsX(document.Rutor()->width()) / 2 - 360);
    }
}

TEST_F(MainWindowTest, AnEditGoesOnAfterAnotherDocumentAndEndsWithItsOwn)
{
    frmDoc *document = newDocument();
    document->Rutor()->GridEdit('x');
    QApplication::processEvents();
    EXPECT_EQ(status(0), resText(503));
    window->OpenRequestedFile(writeVocabulary("other.gla"));
    EXPECT_EQ(window->state(), AppState::StateDocument);
    QApplication::processEvents();
    window->documentArea()->setActiveSubWindow(qobject_cast<QMdiSubWindow *>(document->frame()));
    EXPECT_EQ(window->state(), AppState::StateEditing);
    QGuiApplication::clipboard()->setText("y");
    window->DoMenuClick("mnuEditPaste");
    EXPECT_EQ(document->Rutor()->EditText(), QString("xy"));
    documents().open().back()->frame()->close();
    alert.answers = {AlertBox::AnswerNo};
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_W, Qt::ControlModifier);
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window->state(), AppState::StateNoDocument);
    EXPECT_EQ(window->UndoAction(), resText(419));
}

TEST_F(MainWindowTest, ControlTabGoesAroundTheDocuments)
{
    const std::array made = {newDocument(), newDocument(), newDocument()};
    for (const int next : {1, 2, 3, 1, -3, -2, -1}) { // the shift key goes back
        const Qt::KeyboardModifiers shift = next > 0 ? Qt::NoModifier : Qt::ShiftModifier;
        QTest::keyClick(window->focusWidget(), shift ? Qt::Key_Backtab : Qt::Key_Tab, Qt::ControlModifier | shift);
        EXPECT_EQ(documents().active(), made[size_t(std::abs(next)) - 1]) << next;
    }
    window->documentArea()->activate(*made[1]);
    window->DoMenuClick("mnuFileClose");
    EXPECT_EQ(documents().active(), made[0]) << "the one that was active before";
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window->documentArea()->subWindowList().size(), 2);
}

TEST_F(MainWindowTest, DocumentsStandAtTheRightWhereLinesBeginThere)
{
    const QList<QRect> atLeft{newDocument()->frame()->geometry(), newDocument()->frame()->geometry()};
    const QRect area = window->documentArea()->viewport()->rect();
    window->documentArea()->setLayoutDirection(Qt::RightToLeft);
    window->DoMenuClick("mnuWindow(0)");
    window->resize(window->width() + 70, window->height());
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(documents().open()[i]->frame()->x(), area.right() + 70 - atLeft[i].right()) << i;
}

TEST_F(MainWindowTest, DocumentsAreTiledCascadedAndLinedUpAsIcons)
{
    std::vector<QWidget *> frames;
    std::vector<QRect> places;
    for (int i = 0; i < 3; ++i) {
        frames.push_back(newDocument()->frame());
        places.push_back(frames.back()->geometry());
    }
    DocumentArea &documentArea = *window->documentArea();
    const QRect area = documentArea.viewport()->rect();
    const auto covered = [&frames] {
        QRegion all;
        for (const QWidget *each : frames) {
            EXPECT_FALSE(all.intersects(each->geometry()));
            all += each->geometry();
        }
        return all;
    };
    for (const bool below : {true, false}) {
        frames[1]->showMaximized();
        window->DoMenuClick(below ? "mnuWindow(1)" : "mnuWindow(2)");
        EXPECT_EQ(covered(), QRegion(area));
        EXPECT_EQ(frames[0]->width() == area.width(), below);
    }
    documentArea.activate(*documents().open()[0]);
    window->DoMenuClick("mnuWindow(0)");
    for (size_t i = 0; i < frames.size(); ++i) {
        EXPECT_EQ(frames[i]->geometry(), places[i]) << "as new ones";
        EXPECT_EQ(documentArea.subWindowList(QMdiArea::StackingOrder)[int(i)], frames[i]);
    }
    for (int i = 0; i < 6; ++i)
        frames.insert(frames.begin(), newDocument()->frame());
    frames.pop_back();
    for (QWidget *each : frames)
        each->showMinimized();
    window->DoMenuClick("mnuWindow(3)");
    EXPECT_TRUE(area.contains(covered().boundingRect()));
    EXPECT_EQ(covered().boundingRect().bottomLeft(), area.bottomLeft());
    window->DoMenuClick("mnuWindow(1)");
    EXPECT_TRUE(frames.front()->isMinimized());
    EXPECT_EQ(documentArea.subWindowList().at(2)->geometry(), area) << "icons are left alone";
}

TEST_F(MainWindowTest, RecentFilesAreKeptFromRunToRun)
{
    const QString one = writeVocabulary("one.gla");
    window->OpenRequestedFile(one);
    window->OpenRequestedFile('"' + writeVocabulary("two & more.gla") + '"');
    EXPECT_EQ(documents().open().size(), 2u);
    window->close();
    SetUp();
    const QString file = entries("mnuFile").join('|').replace(QRegularExpression("\\|(\\d) [^|]*/"), "|\\1 ");
    EXPECT_EQ(file.toStdString(), "New|Open...|-|1 two  more.gla|2 one.gla|-|Exit");
    window->DoMenuClick("mnuFileMRU(2)");
    ASSERT_EQ(documents().open().size(), 1u);
    EXPECT_EQ(documents().open().front()->DocName(), one);
    EXPECT_EQ(status(0), resText(506));
}

TEST_F(MainWindowTest, OnlyVocabulariesDroppedOnTheDocumentAreaOpen)
{
    const QString file = writeVocabulary("dropped.GLA");
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
    for (const int state : {1, 7}) {
        settings.setAppWinState(state);
        window->PositionWindow();
        EXPECT_EQ(std::pair(settings.AppWinState(), settings.WinPosRight()), std::pair(0, workArea));
    }
}

TEST_F(MainWindowTest, ADocumentCanRefuseTheEnd)
{
    newDocument()->setDirty(true);
    bool ended = false;
    QObject::connect(window.get(), &frmApp::closed, window.get(), [&ended] { ended = true; });
    EXPECT_FALSE(window->close() || ended);
    alert.answers = {AlertBox::AnswerNo};
    window->DoMenuClick("mnuFileExit");
    EXPECT_TRUE(ended);
}
