#include "document/RecoveryKeeper.h"
#include "document/ctlGrid.h"
#include "support/Files.h"
#include "support/OpenFiles.h"

#include <QDir>

/// A running program that keeps copies. What it leaves behind is found by another one over the same folder.
struct Program : OpenFiles
{
    explicit Program(const QString &folder)
        : keeper(documents, files, folder)
    {
    }

    RecoveryKeeper keeper;
};

struct RecoveryTest : ::testing::Test
{
    QTemporaryDir home;
    QString folder = home.filePath("recovery");
    std::unique_ptr<Program> run = std::make_unique<Program>(folder);

    size_t copies() const { return size_t(QDir(folder).entryList({"*.copy"}).size()); }
    void restart()
    {
        run.reset();
        run = std::make_unique<Program>(folder);
    }
};

TEST_F(RecoveryTest, WhatWasChangedComesBackUnderItsName)
{
    frmDoc *document = run->newDocument();
    run->keeper.flush();
    EXPECT_EQ(copies(), 0u) << "nothing has changed";
    ctlGrid &grid = *document->Rutor();
    grid.setTextMatrix(3, 2, "só aqui 猫");
    grid.setRowHeight(3, 777);
    run->keeper.flush();
    EXPECT_EQ(copies(), 1u) << "by content, also while the document is not marked as changed";
    grid.setTextMatrix(3, 2, "later");
    run->keeper.flush();
    EXPECT_EQ(copies(), 1u);
    EXPECT_TRUE(run->keeper.orphans().empty()) << "a running program's own copies are not offered";
    EXPECT_TRUE(Program(folder).keeper.orphans().empty()) << "nor to another program";

    restart();
    std::vector<RecoveryFolder::Orphan> orphans = run->keeper.orphans();
    ASSERT_EQ(orphans.size(), 1u);
    EXPECT_LT(orphans.front().copy.time.secsTo(QDateTime::currentDateTime()), 60);
    run->keeper.recover(orphans.front());
    const frmDoc &recovered = *run->documents.open().at(0);
    EXPECT_EQ(recovered.Caption(), "Untitled 1");
    EXPECT_TRUE(recovered.Dirty());
    EXPECT_EQ(recovered.Rutor()->Rows(), 101);
    EXPECT_EQ(recovered.Rutor()->TextMatrix(3, 2), "later");
    EXPECT_EQ(recovered.Rutor()->RowHeight(3), 777);

    restart();
    EXPECT_EQ(run->keeper.orphans().size(), 1u) << "a second crash loses nothing";
    run->keeper.discard(run->keeper.orphans().front());
    EXPECT_EQ(copies(), 0u);
}

TEST_F(RecoveryTest, AWordThatIsStillBeingTypedIsKeptToo)
{
    frmDoc *document = run->newDocument();
    QApplication::setActiveWindow(document);
    document->Rutor()->Select(2, 1, 2, 1);
    QTest::keyClicks(QApplication::focusWidget(), "unfinished");
    run->keeper.flush();
    restart();
    ASSERT_EQ(run->keeper.orphans().size(), 1u);
    EXPECT_EQ(run->keeper.orphans().front().copy.vocabulary.first[2], "unfinished");
}

TEST_F(RecoveryTest, TheCopyGoesWhenTheChangesAreSavedOrGivenUp)
{
    frmDoc *document = run->newDocument();
    run->prompts.savePath = home.filePath("kept.gla");
    run->alert.answers = {AlertBox::AnswerNo};
    for (const auto &[word, end] : {std::pair("word", &FileCommands::save), {"other", &FileCommands::closeActive}}) {
        document->Rutor()->setTextMatrix(1, 1, word);
        document->setDirty(true);
        run->keeper.flush();
        EXPECT_EQ(copies(), 1u);
        (run->files.*end)();
        run->keeper.flush();
        EXPECT_EQ(copies(), 0u);
    }
}

TEST_F(RecoveryTest, AnUnsavedDocumentThatClosesLeavesItsCopy)
{
    for (const auto &[name, dirty] :
         {std::pair("the save dialog was cancelled", true), {"no question was asked", false}}) {
        frmDoc *document = run->newDocument();
        document->Rutor()->setTextMatrix(1, 1, name);
        document->setDirty(dirty);
        run->alert.answers = {AlertBox::AnswerYes};
        run->files.closeActive();
        EXPECT_TRUE(run->documents.open().empty());
        run->alert.answers.clear();
        restart();
        ASSERT_EQ(run->keeper.orphans().size(), 1u) << name;
        EXPECT_EQ(run->keeper.orphans().front().copy.vocabulary.first[1], name);
        run->keeper.discard(run->keeper.orphans().front());
    }
}

TEST_F(RecoveryTest, DamagedCopiesAreNeitherOfferedNorDeleted)
{
    frmDoc *document = run->newDocument();
    document->Rutor()->setTextMatrix(1, 1, "word");
    run->keeper.flush();
    restart();
    const QString path = run->keeper.orphans().front().path;
    const QByteArray whole = readFile(path);
    for (qsizetype size = 0; size < whole.size(); size += 7)
        EXPECT_FALSE(RecoveryCopy::fromBytes(whole.left(size))) << size;
    EXPECT_FALSE(RecoveryCopy::fromBytes(whole + 'x'));
    writeFile(path, whole.left(whole.size() / 2));
    EXPECT_TRUE(run->keeper.orphans().empty());
    EXPECT_EQ(copies(), 1u);
}

TEST_F(RecoveryTest, TheFileOfARecoveredDocumentIsKnownAgain)
{
    frmDoc *document = run->newDocument();
    run->prompts.savePath = home.filePath("shared.gla");
    run->files.save();
    document->Rutor()->setTextMatrix(1, 1, "word");
    run->keeper.flush();
    restart();
    run->keeper.recover(run->keeper.orphans().front());
    document = run->documents.open().front();
    run->documents.setActive(document);
    run->files.save();
    EXPECT_TRUE(run->alert.shown.empty()) << "a crash does not make the file another one";
}
