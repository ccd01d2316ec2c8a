#include "tools/frmFont.h"

#include "support/OpenDocument.h"
#include "support/Pixels.h"
#include "support/ScriptedAlertBox.h"
#include "support/Shown.h"
#include "tools/FontSample.h"
#include "widgets/ExtendedComboBox.h"

struct FontDialog : ::testing::Test, OpenDocument
{
    void open()
    {
        dialog = std::make_unique<frmFont>(document, settings, alert, &window);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }
    ExtendedComboBox *box(const char *name) { return dialog->findChild<ExtendedComboBox *>(QString::fromLatin1(name)); }
    FontSample *sample() { return dialog->findChild<FontSample *>(); }
    void typeSize(const QString &text)
    {
        box("cboSize")->lineEdit()->selectAll();
        QTest::keyClicks(box("cboSize")->lineEdit(), text);
    }
    void click(const char *name) { QTest::mouseClick(dialog->findChild<QAbstractButton *>(name), Qt::LeftButton); }

    ScriptedAlertBox alert;
    std::unique_ptr<frmFont> dialog;
};

TEST_F(FontDialog, ShowsTheGridsFontAndKeepsAColorThatHasNoName)
{
    QFont font(QFontDatabase::families().first());
    font.setPointSizeF(9.75);
    font.setBold(true);
    for (const auto &[color, name] : {std::pair(0x008080, "Olive"), {0x123456, ""}}) {
        grid.setGridFont(font);
        grid.setForeColor(color);
        open();
        QTest::keyClicks(box("cboSize"), "x.,-");
        const QString expected = "Font | &Font | >{%1} | ><%1> | &Size | {%2} | <%2> | C&olor | {%3} | [x] &Bold | "
                                 "[ ] &Italic | [ ] &Use as default in new documents | OK | Cancel | ?";
        const QString size = QString::number(grid.Font().pointSizeF());
        EXPECT_EQ(shown(*dialog), expected.arg(font.family(), size, name));
        EXPECT_EQ(sample()->sampleFont(), grid.Font());
        const QImage drawn = sample()->grab().toImage();
        const QRect inner = sample()->contentsRect().adjusted(1, 1, -1, -1);
        const QRect ink = inkOf(drawn.copy(inner), drawn.pixelColor(inner.topLeft()));
        EXPECT_NEAR(ink.center().y(), inner.height() / 2, 4);
        EXPECT_NEAR(ink.left(), 5, 2);
        EXPECT_EQ(sample()->accessibleDescription(), "Glosaria");
        click("chkItalic");
        EXPECT_TRUE(sample()->sampleFont().italic());
        click("btnOK");
        EXPECT_EQ(grid.Font().pointSizeF(), 10);
        EXPECT_TRUE(grid.Font().bold() && grid.Font().italic());
        EXPECT_EQ(grid.ForeColor(), color);
    }
    EXPECT_TRUE(document.Dirty());
    EXPECT_FALSE(settings.FontItalic()) << "the default for new documents stays";
}

TEST_F(FontDialog, IsWalkedThroughBothWays)
{
    open();
    QStringList visited;
    for (int step = 0; step < 15; ++step) {
        QTest::keyClick(dialog.get(), step < 8 ? Qt::Key_Tab : Qt::Key_Backtab);
        visited += dialog->focusWidget()->objectName().mid(3);
    }
    EXPECT_EQ(visited.join(' '),
              "Size Color Bold Italic Default OK Cancel Font Cancel OK Default Italic Bold Color Size");
}

TEST_F(FontDialog, ChecksTheSizeWhileItIsTyped)
{
    open();
    typeSize("5000");
    EXPECT_EQ(alert.onlyPrompt(), "The largest font size allowed is 2048.");
    for (const auto &[size, sampled] : {std::pair("0", 2048), {"1", 1}}) {
        typeSize(size);
        EXPECT_EQ(sample()->sampleFont().pointSizeF(), sampled);
    }
    EXPECT_EQ(alert.shown.size(), 1U);
    for (const QString size : {"0", "2", ""}) {
        alert.shown.clear();
        typeSize(size);
        click("btnOK");
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(alert.onlyPrompt(), "Type a size between 3 and 2048 or select from the dropdown list.");
    }
    click("btnCancel");
    EXPECT_EQ(grid.Font().pointSizeF(), 10);
    EXPECT_FALSE(document.Dirty());
}

TEST_F(FontDialog, EnterInAListAppliesAndStoresTheDefault)
{
    grid.setTextMatrix(1, 1, "word");
    for (const char *name : {"cboFont", "cboSize", "cboColor"}) {
        open();
        EXPECT_EQ(sample()->accessibleDescription(), "word");
        box("cboColor")->setFocus();
        QTest::keyClicks(box("cboColor"), "Red");
        typeSize("14");
        click("chkDefault");
        box(name)->setFocus();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(dialog->isVisible()) << name;
        EXPECT_EQ(grid.ForeColor(), 0x0000FF);
        EXPECT_EQ(std::pair(settings.FontColor(), settings.FontSize()), std::pair(0x0000FF, 14));
        EXPECT_EQ(settings.FontName(), grid.Font().family());
    }
}
