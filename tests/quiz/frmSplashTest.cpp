#include "quiz/frmSplash.h"

#include "resources/StringTable.h"

struct frmSplashTest : ::testing::Test
{
    QWidget *control(const QString &name) { return window.findChild<QWidget *>(name); }
    void open(frmSplash::Status status)
    {
        window.setLoadStatus(status);
        window.Form_Load();
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    frmSplash window{QVersionNumber(3, 1, 7)};
};

TEST_F(frmSplashTest, TheAboutBoxTellsAndOpensItsLinksAndHidesADedication)
{
    QTextBrowser opener; // stands in for the desktop's browser and mail program
    QStringList told;
    QObject::connect(&window, &frmSplash::linkHovered, [&told](const QString &target) { told += target; });
    QObject::connect(&window, &frmSplash::statusRequested, [&told](int) { told += "ready"; });
    for (const char *scheme : {"https", "mailto"})
        QDesktopServices::setUrlHandler(scheme, &opener, "setSource");
    open(frmSplash::About);
    const QStringList links{resText(2001), resText(2002)};
    for (const int i : {0, 1}) {
        auto *link = window.findChild<QToolButton *>(QStringLiteral("imgLink%1").arg(i));
        EXPECT_FALSE(link->icon().isNull() || link->toolTip() != resText(2006 + i));
        told.clear();
        link->setFocus();
        i == 0 ? QTest::mouseClick(link, Qt::LeftButton) : QTest::keyClick(link, Qt::Key_Space);
        control("btnOK")->setFocus();
        EXPECT_EQ(QStringList({links[i], "ready"}), told);
        EXPECT_EQ(links[i], opener.source().toString());
    }
    for (const char *scheme : {"https", "mailto"})
        QDesktopServices::unsetUrlHandler(scheme);
    auto *line = window.findChild<QLabel *>("lblCopyright");
    QTest::mousePress(line, Qt::LeftButton);
    EXPECT_EQ(resText(2005), line->text());
    QTest::mouseRelease(line, Qt::LeftButton);
    EXPECT_EQ(resText(2004), line->text());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}
