#include "quiz/frmLang.h"

#include "document/ctlGrid.h"
#include "document/frmDoc.h"
#include "platform/RegistryTree.h"
#include "services/modSBFunc.h"
#include "services/rules/ProgramFlags.h"
#include "services/rules/clsAppProperties.h"

namespace {

class frmLangTest : public testing::Test
{
protected:
    frmLangTest()
    {
        status.createPanels(900);
        document.setUpGrid(QSize(400, 300));
        document.Rutor()->setTextMatrix(0, 1, QStringLiteral("English"));
        document.setDirty(false);
        document.refreshQuizMode();
    }

    void open()
    {
        dialog = std::make_unique<frmLang>(document);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
        QCoreApplication::processEvents();
    }

    QString name(int column) { return document.Rutor()->TextMatrix(0, column); }

    RegistryTree store;
    clsAppProperties settings{store, QStringLiteral("glosaria")};
    ProgramFlags flags;
    UndoRecord undo;
    modSBFunc status{flags};
    frmDoc document{{flags, undo, status, settings}};
    std::unique_ptr<frmLang> dialog;
};

} // namespace

TEST_F(frmLangTest, NamesAreWrittenAsTypedAndAnEmptyBoxKeepsItsName)
{
    open();
    // The box that has the focus is selected as a whole, so typing replaces its name.
    QTest::keyClicks(dialog->focusWidget(), QStringLiteral(" Old English "));
    QTest::keyClick(dialog->focusWidget(), Qt::Key_2, Qt::AltModifier);
    QCoreApplication::processEvents();
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Delete);
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(u" Old English ", name(1));
    EXPECT_EQ(u"Language 2", name(2));
    EXPECT_TRUE(document.Dirty());
    EXPECT_EQ(u" Old English  -> Language 2 In Order", status.text(2));
}

TEST_F(frmLangTest, OkMarksTheDocumentChangedEvenWithoutAChange)
{
    open();
    QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("btnOK")), Qt::LeftButton);
    EXPECT_TRUE(document.Dirty());
    EXPECT_EQ(u"English", name(1));
}

TEST_F(frmLangTest, CancelAndEscapeWriteNothing)
{
    for (bool escape : {false, true}) {
        open();
        QTest::keyClicks(dialog->focusWidget(), QStringLiteral("x"));
        if (escape)
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
        else
            QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("btnCancel")), Qt::LeftButton);
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(u"English", name(1));
        EXPECT_FALSE(document.Dirty());
    }
}
