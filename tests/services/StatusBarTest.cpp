#include "resources/StringTable.h"
#include "services/modSBFunc.h"
#include "services/modSBMenuHelp.h"

#include <QMenu>
#include <QProgressBar>

namespace {

struct StatusBarTest : ::testing::Test
{
    ProgramFlags flags;
    modSBFunc bar{flags};

    StatusBarTest()
    {
        bar.resize(900, 20);
        bar.createPanels(900);
    }
};

} // namespace

TEST_F(StatusBarTest, PanelsStandAtTheirEdges)
{
    EXPECT_EQ(bar.text(0), resText(506));
    EXPECT_EQ(bar.panelRect(1).left(), 300);
    EXPECT_EQ(bar.panelRect(2).left(), 480);
    EXPECT_EQ(bar.panelRect(3).left(), 880);
    bar.resize(1200, 20);
    EXPECT_EQ(bar.panelRect(3).left(), 880) << "the edges stay when the window grows";
}

TEST_F(StatusBarTest, ShowsATextByIdOnceUntilTheCacheIsReset)
{
    bar.ShowStatus(506);
    bar.SBSetText(0, modSBFunc::SBT_SUNKEN, QStringLiteral("loading"));
    bar.ShowStatus(506);
    EXPECT_EQ(bar.text(0), QStringLiteral("loading"));
    bar.ShowStatus(0);
    EXPECT_EQ(bar.text(0), QStringLiteral("loading"));
    bar.ShowStatus(506);
    EXPECT_EQ(bar.text(0), resText(506));
}

TEST_F(StatusBarTest, HoldsTextsBackWhileTheFindDialogIsOpen)
{
    for (bool ProgramFlags::*flag : {&ProgramFlags::FindMode, &ProgramFlags::ReplaceMode}) {
        flags.*flag = true;
        bar.ShowStatus(503);
        EXPECT_EQ(bar.text(0), resText(506));
        flags.*flag = false;
    }
    bar.ShowStatus(503);
    EXPECT_EQ(bar.text(0), resText(503));
}

TEST_F(StatusBarTest, SendsUnusualRequestsToPanelZero)
{
    struct Case
    {
        int panel, style, lands;
    };
    for (const Case &c : std::initializer_list<Case>{{0, 0, 0},
                                                     {1, 0, 1},
                                                     {2, 0, 2},
                                                     {3, 0, 0},
                                                     {255, 0, 0},
                                                     {-1, 0, 0},
                                                     {1, modSBFunc::SBT_NOBORDERS, 0},
                                                     {2, modSBFunc::SBT_POPOUT, 0}}) {
        const QString text = QStringLiteral("%1/%2").arg(c.panel).arg(c.style);
        bar.SBSetText(c.panel, c.style, text);
        EXPECT_EQ(bar.text(c.lands), text);
    }
}

TEST_F(StatusBarTest, ProgressLiesOverPanelOneAndNeverLeavesItsRange)
{
    bar.createProgress(32767);
    auto *progress = bar.findChild<QProgressBar *>();
    ASSERT_TRUE(progress);
    EXPECT_EQ(progress->geometry(), bar.panelRect(1));
    bar.setProgress(20000);
    EXPECT_EQ(progress->value(), 20000);
    bar.createProgress(qint64(1) << 40);
    progress = bar.findChild<QProgressBar *>();
    EXPECT_EQ(progress->maximum(), 100);
    bar.setProgress(qint64(1) << 39);
    EXPECT_EQ(progress->value(), 100);
    bar.destroyProgress();
    bar.setProgress(1);
    EXPECT_FALSE(bar.findChild<QProgressBar *>());
}

TEST_F(StatusBarTest, MenuHelpFollowsTheHighlight)
{
    modSBMenuHelp help(bar);
    QMenu menu;
    QAction *enabled = menu.addAction(QStringLiteral("a"));
    QAction *disabled = menu.addAction(QStringLiteral("b"));
    disabled->setEnabled(false);
    help.watch(&menu, [](const QAction *action) -> QString { return QStringLiteral("does ") + action->text(); });
    menu.popup(QPoint(0, 0));
    menu.setActiveAction(enabled);
    EXPECT_EQ(bar.text(0), QStringLiteral("does a"));
    menu.setActiveAction(disabled);
    EXPECT_EQ(bar.text(0), QStringLiteral("does a"));
    menu.close();
    EXPECT_EQ(bar.text(0), resText(506));
}
