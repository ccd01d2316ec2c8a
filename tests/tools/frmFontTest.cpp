#include "tools/frmFont.h"

#include "support/OpenDocument.h"
#include "support/ScriptedAlertBox.h"
#include "tools/FontSample.h"

struct FontDialog : ::testing::Test, OpenDocument
{
    void open()
    {
        dialog = std::make_unique<frmFont>(document, settings, alert, &window);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }
    QComboBox *box(const char *name) { return dialog->findChild<QComboBox *>(name); }
    FontSample *sample() { return dialog->findChild<FontSample *>(); }
    void click(const char *name) { QTest::mouseClick(dialog->findChild<QAbstractButton *>(name), Qt::LeftButton); }

    ScriptedAlertBox alert;
    std::unique_ptr<frmFont> dialog;
};

TEST_F(FontDialog, ShowsTheGridsFontAndKeepsAColorThatHasNoName)
{
    QFont font(QFontDatabase::families().first(), -1, QFont::Bold);
    font.setPointSizeF(9.75);
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
        const QRect ink = inkOf(drawn.copy(sample()->contentsRect()), drawn.pixelColor(3, 3));
        EXPECT_TRUE(std::abs(ink.center().y() - drawn.height() / 2) < 5 && std::abs(ink.left() - 5) < 3);
        EXPECT_NE(drawn.pixelColor(0, 9), dialog->palette().color(QPalette::Window)) << "the frame";
        EXPECT_EQ(sample()->accessibleDescription(), "Glosaria");
        click("chkItalic");
        EXPECT_TRUE(sample()->sampleFont().italic());
        click("btnOK");
        EXPECT_TRUE(grid.Font() == QFont(font.family(), 10, QFont::Bold, true) && grid.ForeColor() == color);
    }
    EXPECT_TRUE(document.Dirty() && !settings.FontItalic()) << "the default for new documents stays";
}

TEST_F(FontDialog, ChecksTheSizeWhileItIsTyped)
{
    open();
    QTest::keyClick(dialog.get(), Qt::Key_Backtab);
    EXPECT_EQ(dialog->focusWidget()->objectName(), "btnCancel") << "out of the first box";
    box("cboSize")->setFocus();
    // the size that is typed, that of the sample, and the first word of what the user is told
    play(
        "Ctrl+A -> 10 10, 5000 -> 2048 2048 The, Ctrl+A -> 2048 2048, 0 -> 0 2048, btnOK -> 0 2048 Type, "
        "Ctrl+A -> 0 2048, 1 -> 1 1, Ctrl+A -> 1 1, 2 -> 2 2, btnOK -> 2 2 Type, Ctrl+A -> 2 2, Del ->  2 Type",
        [this] {
            QString text = box("cboSize")->currentText() + ' ' + QString::number(sample()->sampleFont().pointSizeF());
            for (const Alert &told : std::exchange(alert.shown, {}))
                text += told.sound ? ' ' + told.prompt.section(' ', 0, 0) : "";
            return text;
        },
        {}, dialog.get());
    click("btnCancel");
    EXPECT_TRUE(grid.Font().pointSizeF() == 10 && !document.Dirty());
}

TEST_F(FontDialog, EnterInAListAppliesAndStoresTheDefault)
{
    grid.setTextMatrix(1, 1, "word");
    grid.setRowHeight(1, 150);
    for (const char *name : {"cboFont", "cboSize", "cboColor"}) {
        open();
        EXPECT_EQ(sample()->accessibleDescription(), "word");
        box("cboColor")->setFocus();
        QTest::keyClicks(box("cboColor"), "Red");
        box("cboSize")->setEditText("14");
        click("chkBold"), click("chkDefault");
        box(name)->setFocus();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(dialog->isVisible()) << name;
        EXPECT_EQ(std::tuple(grid.ForeColor(), settings.FontColor(), settings.FontSize(), settings.FontBold()),
                  std::tuple(0x0000FF, 0x0000FF, 14, grid.Font().bold()));
        EXPECT_TRUE(settings.FontName() == grid.Font().family() && grid.RowHeight(1) >= grid.fittingRowHeight(1));
    }
}
