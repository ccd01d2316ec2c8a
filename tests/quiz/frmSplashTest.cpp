#include "quiz/frmSplash.h"

#include "resources/StringTable.h"

#include <QDesktopServices>
#include <QSignalSpy>
#include <QToolButton>

namespace {

class frmSplashTest : public testing::Test
{
protected:
    template <class Control> Control *control(const char *name)
    {
        return window.findChild<Control *>(QLatin1String(name));
    }

    void open(frmSplash::Status status)
    {
        window.setLoadStatus(status);
        window.Form_Load();
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    frmSplash window{QVersionNumber(3, 1, 7)};
};

/// Stands in for the desktop's browser and mail program.
class LinkOpener : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void open(const QUrl &url) { opened += url.toString(); }

    QStringList opened;
};

} // namespace

TEST_F(frmSplashTest, TheSplashHasNeitherTitleNorButtonsNorLinks)
{
    open(frmSplash::StartUp);
    EXPECT_EQ(QString(), window.windowTitle());
    EXPECT_TRUE(window.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_FALSE(window.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_FALSE(control<QPushButton>("btnOK")->isVisible());
    EXPECT_FALSE(control<QToolButton>("imgLink0")->isEnabled());
    EXPECT_FALSE(control<QToolButton>("imgLink1")->isEnabled());
    const QPoint off = window.frameGeometry().center() - window.screen()->availableGeometry().center();
    EXPECT_LE(off.manhattanLength(), 2);
    EXPECT_EQ(u"Version 3.1", control<QLabel>("lblVersion")->text());
}

TEST_F(frmSplashTest, TheAboutBoxOpensItsLinks)
{
    LinkOpener opener;
    for (const char *scheme : {"https", "mailto"})
        QDesktopServices::setUrlHandler(QLatin1String(scheme), &opener, "open");
    open(frmSplash::About);
    EXPECT_EQ(resText(2006), control<QToolButton>("imgLink0")->toolTip());
    EXPECT_EQ(resText(2007), control<QToolButton>("imgLink1")->toolTip());
    QTest::mouseClick(control<QToolButton>("imgLink0"), Qt::LeftButton);
    QTest::keyClick(control<QToolButton>("imgLink1"), Qt::Key_Space);
    for (const char *scheme : {"https", "mailto"})
        QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    EXPECT_EQ(QStringList({resText(2001), resText(2002)}), opener.opened);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(frmSplashTest, TheStatusBarHearsWhereTheLinksLead)
{
    open(frmSplash::About);
    QSignalSpy targets(&window, &frmSplash::linkHovered);
    QSignalSpy texts(&window, &frmSplash::statusRequested);
    QTest::mouseMove(control<QToolButton>("imgLink1"));
    ASSERT_EQ(1, targets.size());
    EXPECT_EQ(resText(2002), targets[0][0].toString());
    texts.clear();
    QTest::mouseMove(&window, QPoint(4, 4));
    ASSERT_FALSE(texts.isEmpty());
    EXPECT_EQ(506, texts.last()[0].toInt());
}

TEST_F(frmSplashTest, TheCopyrightLineHidesADedication)
{
    open(frmSplash::About);
    auto *line = control<QLabel>("lblCopyright");
    EXPECT_EQ(resText(2004), line->text());
    QTest::mousePress(line, Qt::LeftButton);
    EXPECT_EQ(resText(2005), line->text());
    QTest::mouseRelease(line, Qt::LeftButton);
    EXPECT_EQ(resText(2004), line->text());
}

TEST_F(frmSplashTest, ReturnAndEscapeCloseTheAboutBox)
{
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        open(frmSplash::About);
        QTest::keyClick(&window, key);
        EXPECT_FALSE(window.isVisible());
    }
}

#include "frmSplashTest.moc"
