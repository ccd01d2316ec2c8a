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
        "Ctrl+A -> 10 10, 5000 -> 2048 2048 !Glosaria Alert: The, Ctrl+A -> 2048 2048, 0 -> 0 2048, btnOK -> 0 2048 "
        "!Glosaria Alert: Type, Ctrl+A -> 0 2048, 1 -> 1 1, Ctrl+A -> 1 1, 2 -> 2 2, btnOK -> 2 2 !Glosaria Alert: "
        "Type, Ctrl+A -> 2 2, 3 -> 3 3, Ctrl+A -> 3 3, Del -> 3 !Glosaria Alert: Type",
        [this] {
            const QString text =
                box("cboSize")->currentText() + ' ' + QString::number(sample()->sampleFont().pointSizeF());
            return (text + ' ' + alert.told().remove(QRegularExpression(" (largest|a size)[^|]*"))).trimmed();
        },
        {}, dialog.get());
    click("btnCancel");
    EXPECT_TRUE(grid.Font().pointSizeF() == 10 && !document.Dirty());
}

TEST_F(FontDialog, EnterInAListAppliesAndStoresTheDefault)
{
    grid.setTextMatrix(1, 1, "word");
    grid.setRowHeight(1, 150);
    for (const auto &[name, slanted] : {std::pair("cboFont", true), {"cboSize", false}, {"cboColor", true}}) {
        open();
        const QString family = box("cboFont")->itemText(slanted);
        EXPECT_EQ(sample()->accessibleDescription(), "word");
        box("cboColor")->setFocus();
        QTest::keyClicks(box("cboColor"), "Blue");
        box("cboFont")->setCurrentText(family), box("cboSize")->setEditText("14");
        click("chkBold"), click("chkItalic"), click("chkDefault");
        const QImage drawn = sample()->grab(sample()->contentsRect()).toImage();
        const QColor mean = drawn.scaled(1, 1, {}, Qt::SmoothTransformation).pixelColor(0, 0);
        EXPECT_TRUE(mean.blue() == 255 && mean.red() < 255) << "the sample is blue on white";
        box(name)->setFocus();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(dialog->isVisible()) << name;
        EXPECT_EQ(grid.Font(), QFont(family, 14, slanted ? QFont::Bold : QFont::Normal, slanted));
        EXPECT_EQ(std::tuple(grid.ForeColor(), settings.FontName(), settings.FontColor(), settings.FontSize(),
                             settings.FontBold(), settings.FontItalic()),
                  std::tuple(0xFF0000, family, 0xFF0000, 14, slanted, slanted));
        EXPECT_GE(grid.RowHeight(1), grid.fittingRowHeight(1));
    }
}
