#include "quiz/frmSplash.h"

#include "resources/StringTable.h"

struct frmSplashTest : ::testing::Test
{
    template <class Control> Control *control(const char *name) { return window.findChild<Control *>(name); }

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

TEST_F(frmSplashTest, TheSplashStandsInTheMiddleAndHasNothingToClick)
{
    open(frmSplash::StartUp);
    EXPECT_TRUE(window.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_FALSE(control<QPushButton>("btnOK")->isVisible() || control<QToolButton>("imgLink0")->isEnabled());
    const QPoint off = window.frameGeometry().center() - window.screen()->availableGeometry().center();
    EXPECT_LE(off.manhattanLength(), 2);
    EXPECT_EQ(u"Version 3.1", control<QLabel>("lblVersion")->text());
}

TEST_F(frmSplashTest, TheAboutBoxOpensItsLinksAndHidesADedication)
{
    LinkOpener opener;
    for (const char *scheme : {"https", "mailto"})
        QDesktopServices::setUrlHandler(scheme, &opener, "open");
    open(frmSplash::About);
    QTest::mouseClick(control<QToolButton>("imgLink0"), Qt::LeftButton);
    QTest::keyClick(control<QToolButton>("imgLink1"), Qt::Key_Space);
    for (const char *scheme : {"https", "mailto"})
        QDesktopServices::unsetUrlHandler(scheme);
    EXPECT_EQ(QStringList({resText(2001), resText(2002)}), opener.opened);

    auto *line = control<QLabel>("lblCopyright");
    QTest::mousePress(line, Qt::LeftButton);
    EXPECT_EQ(resText(2005), line->text());
    QTest::mouseRelease(line, Qt::LeftButton);
    EXPECT_EQ(resText(2004), line->text());
    EXPECT_TRUE(window.isVisible());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

#include "frmSplashTest.moc"
