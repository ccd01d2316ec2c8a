#include "resources/StringTable.h"
#include "services/status/modSBFunc.h"

struct StatusBarTest : ::testing::Test
{
    ProgramFlags flags;
    modSBFunc bar{flags};

    StatusBarTest()
    {
        bar.resize(900, 20);
        bar.createPanels(900);
        bar.show();
    }
};

TEST_F(StatusBarTest, PanelsStandInTheirPlacesFromWhereLinesBegin)
{
    const auto places = [this](int width) {
        bar.resize(width, 20);
        QString text;
        for (int panel = 0; panel < 4; ++panel) {
            const QRect place = bar.panelRect(panel);
            text += QString("%1+%2 ").arg(place.left()).arg(place.width());
            EXPECT_TRUE(place.top() == 1 && place.height() == 19);
            EXPECT_EQ(static_cast<const QFrame *>(bar.childAt(place.topLeft()))->frameShape() != QFrame::NoFrame,
                      panel < 3);
        }
        const QRect grip = bar.findChild<QSizeGrip *>()->geometry();
        EXPECT_TRUE(grip.bottom() == 19 && grip.size() == bar.findChild<QSizeGrip *>()->sizeHint() &&
                    bar.childAt(grip.center()) == bar.findChild<QSizeGrip *>());
        const QImage empty = bar.grab(bar.panelRect(1)).toImage();
        EXPECT_EQ(inkOf(empty, empty.pixelColor(50, 9)), empty.rect()) << "the frame";
        return text + (grip.right() == width - 1 ? "> " : grip.left() == 0 ? "< " : "? ");
    };
    EXPECT_EQ(places(900) + places(1200), "0+298 300+178 480+398 880+18 > 0+298 300+178 480+398 880+318 > ");
    bar.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(places(901), "603+298 423+178 23+398 2+19 < ");
    EXPECT_EQ(bar.text(0) + bar.statusTip(), resText(506) + resText(2000));
    bar.setFont(QFont("", 40));
    EXPECT_EQ(bar.sizeHint(), QSize(500, std::max(20, bar.fontMetrics().height() + 6)));
    EXPECT_EQ(bar.sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed));
}

TEST_F(StatusBarTest, ALongTextShowsWholeAsFarAsTheModeLeavesRoom)
{
    const QString mode = "Language 1 -> Language 2 In Order";
    bar.SBSetText(2, modSBFunc::SBT_SUNKEN, mode);
    bar.createProgress(10);
    const auto width = [this](const QString &text) { return bar.fontMetrics().horizontalAdvance(text) + 10; };
    for (int length = 80; length > 0; --length) {
        const QString text(length, u'm');
        bar.SBSetText(0, modSBFunc::SBT_SUNKEN, text);
        const QRect first = bar.panelRect(0);
        EXPECT_EQ(first.width(), std::clamp(width(text) + 1, 298, 695 - width(mode)));
        EXPECT_EQ(bar.panelRect(1), QRect(first.width() + 2, 1, 178, 19));
        EXPECT_EQ(bar.findChild<QProgressBar *>()->geometry(), bar.panelRect(1));
        EXPECT_EQ(bar.panelRect(2), QRect(QPoint(first.width() + 182, 1), QPoint(877, 19)));
        EXPECT_EQ(bar.childAt(5, 10)->toolTip().isEmpty(), width(text) <= first.width()) << "it is cut";
        const QImage drawn = bar.grab(first.adjusted(2, 2, -2, -2)).toImage();
        const QRect ink = inkOf(drawn, drawn.pixelColor(0, 0));
        EXPECT_TRUE(ink.left() >= 3 && ink.right() < drawn.width() - 3) << ink.left() << ' ' << ink.right();
        EXPECT_NEAR(ink.width(), std::min(width(text), first.width()) - 10, 15);
    }
}

TEST_F(StatusBarTest, ShowsATextByIdOnceUntilAnotherIsAskedFor)
{
    const auto shown = [this](int id) {
        bar.ShowStatus(id);
        return bar.text(0);
    };
    EXPECT_EQ(shown(506), resText(506));
    bar.SBSetText(0, modSBFunc::SBT_SUNKEN, "loading");
    EXPECT_EQ((QStringList{shown(506), shown(0), shown(506)}), (QStringList{"loading", "loading", resText(506)}));
    flags.FindMode = true;
    EXPECT_EQ(shown(503), resText(506)) << "not while a search goes through the cells";
    flags.FindMode = false;
    EXPECT_EQ(shown(503), resText(503));
    bar.showText("told");
    EXPECT_EQ((QStringList{bar.text(0), shown(503)}), (QStringList{"told", resText(503)}));
}

TEST_F(StatusBarTest, SendsUnusualRequestsToPanelZero)
{
    const int requests[][2] = {
        {-1, 0}, {0, 0}, {1, 0}, {2, 0}, {3, 0}, {255, 0}, {1, modSBFunc::SBT_NOBORDERS}, {2, modSBFunc::SBT_POPOUT}};
    for (const auto &[panel, style] : requests) {
        const QString text = QString("%1/%2").arg(panel).arg(style);
        bar.SBSetText(panel, style, text);
        const bool usual = style == modSBFunc::SBT_SUNKEN && (panel == 1 || panel == 2);
        EXPECT_EQ(bar.childAt(bar.panelRect(usual ? panel : 0).center())->accessibleName(), text);
    }
}

TEST_F(StatusBarTest, ProgressLiesOverPanelOneAndNeverLeavesItsRange)
{
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&bar));
    const auto onScreen = [this] { return bar.screen()->grabWindow(bar.winId()).toImage(); };
    const std::tuple<qint64, qint64, int> cases[] = {{32767, 20000, 20000}, {qint64(1) << 40, qint64(1) << 39, 100}};
    for (const auto &[maximum, position, shown] : cases) {
        std::vector<QImage> seen{onScreen()}; // at once, while the program is busy
        bar.createProgress(maximum);
        seen.push_back(onScreen());
        bar.setProgress(position);
        seen.push_back(onScreen());
        EXPECT_TRUE(seen[0] != seen[1] && seen[1] != seen[2]);
        const auto *progress = bar.findChild<QProgressBar *>();
        EXPECT_TRUE(progress->accessibleName() == bar.text(0) && !progress->isTextVisible() && !progress->minimum());
        EXPECT_EQ(progress->geometry(), bar.panelRect(1));
        EXPECT_EQ(progress->value(), shown);
    }
    bar.destroyProgress();
    bar.setProgress(1);
    EXPECT_FALSE(bar.findChild<QProgressBar *>());
}
