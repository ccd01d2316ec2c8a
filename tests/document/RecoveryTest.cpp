#include "document/RecoveryKeeper.h"
#include "support/OpenFiles.h"

/// A running program that keeps copies. What it leaves behind is found by another one over the same folder.
struct Program : OpenFiles
{
    explicit Program(const QString &folder)
        : keeper(CodePage(), folder)
    {
        keeper.follow(documents, files);
    }
    bool secure(frmDoc &document) override { return keeper.secure(document); }

    frmDoc *changedDocument(const QString &word)
    {
        frmDoc *document = newDocument();
        document->Rutor()->setTextMatrix(1, 1, word);
        document->setDirty(true);
        return document;
    }

    RecoveryKeeper keeper;
};

struct RecoveryTest : ::testing::Test
{
    QTemporaryDir home;
    QString folder = home.filePath("recovery");
    std::unique_ptr<Program> run = std::make_unique<Program>(folder);

    QStringList copies() const
    {
        run->keeper.flush();
        QStringList found;
        for (QDirIterator it(folder, {"*.copy"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
            found += it.next();
            for (const QString &place : {folder, it.fileInfo().path()})
                EXPECT_FALSE(QFileInfo(place).permissions() & ~QFile::Permissions(0x7700)) << "others can look in";
        }
        return found;
    }
    void restart()
    {
        run.reset();
        run = std::make_unique<Program>(folder);
    }
    void discardAll() const
    {
        for (const RecoveryFolder::Orphan &orphan : run->keeper.orphans())
            run->keeper.discard(orphan);
    }
};

TEST_F(RecoveryTest, WhatDiffersFromTheFileIsKeptAndNothingElse)
{
    using Change = std::function<void(frmDoc &, ctlGrid &)>;
    const std::tuple<const char *, bool, Change> cases[] = {
        {"nothing", false, [](frmDoc &, ctlGrid &) {}},
        {"a word", true, [](frmDoc &, ctlGrid &grid) { grid.setTextMatrix(2, 1, "só 猫"); }},
        {"a row's height", true, [](frmDoc &, ctlGrid &grid) { grid.setRowHeight(1, 777); }},
        {"a column's width", true, [](frmDoc &, ctlGrid &grid) { grid.setColWidth(1, 777); }},
        {"the font", true, [](frmDoc &, ctlGrid &grid) { grid.setGridFont(QFont("Arial", 33)); }},
        {"the font's name", true, [](frmDoc &, ctlGrid &grid) { grid.setGridFont(QFont("Liberation Serif", 10)); }},
        {"the colour", true, [](frmDoc &, ctlGrid &grid) { grid.setForeColor(0xFF); }},
        {"an inserted row", true, [](frmDoc &, ctlGrid &grid) { grid.insertRows(1, 1); }},
        {"empty rows at the end", false, [](frmDoc &, ctlGrid &grid) { grid.setRows(300); }},
        {"the mark of a change alone", false, [](frmDoc &document, ctlGrid &) { document.setDirty(true); }},
        {"a row taken out again", false, [](frmDoc &, ctlGrid &grid) { grid.insertRows(1, 1), grid.removeRows(1, 1); }},
        {"typing", true, [](frmDoc &, ctlGrid &grid) { grid.setEditMode(true), grid.setSelText("unfinished"); }},
        {"deleting", true,
         [](frmDoc &, ctlGrid &grid) { grid.GridEdit(0), grid.SelectEditText(0, 3), grid.setSelText({}); }},
    };
    for (const auto &[name, kept, change] : cases) {
        frmDoc *document = run->changedDocument("one");
        run->prompts.savePath = home.filePath("words.gla");
        run->files.save();
        EXPECT_TRUE(copies().isEmpty()) << "saved";
        change(*document, *document->Rutor());
        EXPECT_EQ(copies().size(), kept) << name;
        run->alert.answers = {AlertBox::AnswerNo};
        document->setDirty(true);
        run->files.closeActive();
        EXPECT_TRUE(copies().isEmpty()) << "given up";
    }
}

TEST_F(RecoveryTest, EveryLaterChangeReachesTheCopyAndGoesWhenItIsUndone)
{
    ctlGrid &grid = *run->changedDocument("first")->Rutor();
    EXPECT_EQ(copies().size(), 1);
    grid.setTextMatrix(1, 2, "second");
    grid.setRowHeight(1, 777);
    EXPECT_EQ(copies().size(), 1);
    restart();
    const RecoveryFolder::Orphan orphan = run->keeper.orphans().at(0);
    EXPECT_EQ(orphan.copy.cause, RecoveryCopy::Cause::Ended);
    EXPECT_LT(orphan.copy.time.secsTo(QDateTime::currentDateTime()), 60);
    run->keeper.recover(orphan);
    ASSERT_EQ(run->documents.open().size(), 1u);
    const frmDoc &recovered = *run->documents.open().front();
    EXPECT_EQ(recovered.Caption(), "Untitled 1");
    EXPECT_TRUE(recovered.Dirty());
    EXPECT_EQ(recovered.Rutor()->Rows(), 101);
    EXPECT_EQ(recovered.Rutor()->TextMatrix(1, 2), "second");
    EXPECT_EQ(recovered.Rutor()->RowHeight(1), 777);
    EXPECT_EQ(run->newDocument()->Caption(), "Untitled 2");

    frmDoc *document = run->documents.active();
    document->Rutor()->setTextMatrix(1, 1, "x");
    EXPECT_EQ(copies().size(), 2);
    document->Rutor()->setTextMatrix(1, 1, QString());
    EXPECT_EQ(copies().size(), 1) << "only what was recovered";
}

TEST_F(RecoveryTest, TheCopiesOfRunningProgramsAreNobodyElses)
{
    run->changedDocument("word");
    run->keeper.flush();
    EXPECT_TRUE(run->keeper.orphans().empty());
    auto second = std::make_unique<Program>(folder);
    EXPECT_TRUE(second->keeper.orphans().empty());

    restart();
    const std::vector<RecoveryFolder::Orphan> offered = second->keeper.orphans();
    ASSERT_EQ(offered.size(), 1u);
    run->keeper.recover(run->keeper.orphans().at(0));
    second->keeper.recover(offered.front());
    EXPECT_TRUE(second->documents.open().empty()) << "the other program was quicker";
    EXPECT_TRUE(second->keeper.orphans().empty());
    second.reset();
    restart();
    EXPECT_EQ(run->keeper.orphans().size(), 1u) << "a second crash loses nothing";
    discardAll();
    EXPECT_TRUE(QDir(folder).isEmpty());
}

TEST_F(RecoveryTest, AClosedDocumentLeavesTheWordsThatItsFileLacksAndWhy)
{
    using enum RecoveryCopy::Cause;
    using Change = void (*)(ctlGrid &);
    const Change word = [](ctlGrid &grid) { grid.setTextMatrix(1, 2, "eins"); };
    const Change layout = [](ctlGrid &grid) { grid.setColWidth(1, 777); };
    const Change clear = [](ctlGrid &grid) { grid.setTextMatrix(1, 1, QString()); };
    const Change insert = [](ctlGrid &grid) { grid.insertRows(1, 1); };
    const Change below = [](ctlGrid &grid) { grid.setTextMatrix(9, 2, "neun"); };
    enum Saving { Cancelled, Fails, Works };
    struct Case
    {
        const char *name;
        bool hasFile;
        Change change;
        bool asked; ///< and answered with Yes
        Saving saving;
        size_t boxes; ///< that the user sees
        std::optional<RecoveryCopy::Cause> left;
    };
    const Case cases[] = {
        {"a first save that is given up", false, word, true, Cancelled, 1, Closed},
        {"the same without any word", false, layout, true, Cancelled, 1, {}},
        {"a first save that fails", false, word, true, Fails, 2, Closed},
        {"a later save that fails", true, clear, true, Fails, 3, Closed},
        {"words below the last row", true, below, true, Works, 2, NotInFile},
        {"words below the last row, not saved", false, below, true, Cancelled, 1, Closed},
        {"a cleared cell", true, clear, false, Works, 0, {}},
        {"an inserted row", true, insert, false, Works, 0, {}},
        {"a size", true, layout, false, Works, 0, {}},
        {"a word that came back by Undo", true, word, false, Works, 0, Closed},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        const QString path = home.filePath("words.gla");
        QDir().rmdir(path);
        frmDoc *document = c.hasFile ? run->changedDocument("one") : run->newDocument();
        run->prompts.savePath = path;
        if (c.hasFile)
            run->files.save();
        c.change(*document->Rutor());
        EXPECT_EQ(copies().size(), 1);
        document->setDirty(c.asked);
        if (c.saving != Works)
            run->prompts.savePath.clear();
        if (c.saving == Fails) { // where a folder stands
            QFile::remove(path);
            QDir().mkdir(path);
            run->prompts.savePath = path;
        }
        run->alert.shown.clear();
        run->alert.answers = {AlertBox::AnswerYes, AlertBox::AnswerYes};
        run->files.closeActive();
        EXPECT_TRUE(run->documents.open().empty());
        EXPECT_EQ(run->alert.shown.size(), c.boxes);
        restart();
        const std::vector<RecoveryFolder::Orphan> orphans = run->keeper.orphans();
        ASSERT_EQ(orphans.size(), c.left ? 1u : 0u);
        EXPECT_TRUE(!c.left || orphans[0].copy.cause == *c.left);
        discardAll();
    }
}

TEST_F(RecoveryTest, AWindowWhoseWordsCanBeKeptNowhereClosesOnlyIfTheUserLetsThemGo)
{
    writeFile(folder, "in the way");
    run->changedDocument("saved")->Rutor()->setTextMatrix(9, 2, "lost");
    run->prompts.savePath = home.filePath("words.gla");
    run->alert.answers = {AlertBox::AnswerYes, AlertBox::AnswerYes};
    run->files.closeActive();
    EXPECT_TRUE(run->documents.open().empty());
    EXPECT_TRUE(run->alert.shown.back().prompt.startsWith("The words in row 9 could be kept nowhere"));
    run->prompts.savePath.clear();
    run->changedDocument("word");
    run->alert.answers = {AlertBox::AnswerYes, AlertBox::AnswerNo};
    run->files.closeActive();
    EXPECT_EQ(run->documents.open().size(), 1u);
    EXPECT_EQ(run->alert.shown.back().prompt, resText(12627).arg("Untitled 2"));
    QFile::remove(folder);
    EXPECT_EQ(copies().size(), 1) << "it is tried again";
    QDir(folder).removeRecursively();
    run->documents.open().front()->Rutor()->setTextMatrix(1, 1, "other");
    EXPECT_EQ(copies().size(), 1) << "also when the folder was removed meanwhile";
}

TEST_F(RecoveryTest, WhatIsOverwrittenInPlaceIsInACopyMeanwhile)
{
    const QString path = home.filePath("words.gla");
    run->prompts.savePath = path;
    frmDoc *document = run->changedDocument("word");
    run->files.save();
    EXPECT_TRUE(copies().isEmpty());
    EXPECT_TRUE(run->secure(*document));
    EXPECT_EQ(copies().size(), 1) << "although nothing has changed";
    restart();
    EXPECT_TRUE(run->keeper.orphans().empty()) << "the file is whole";
    run->files.LoadVocabulary(path);
    document = run->documents.open().front();
    EXPECT_TRUE(run->secure(*document));
    writeFile(path, readFile(path).chopped(3));
    restart();
    ASSERT_EQ(run->keeper.orphans().size(), 1u);
    EXPECT_TRUE(run->keeper.orphans()[0].copy.isFileChanged());
}

TEST_F(RecoveryTest, StrangeCopiesAreNeitherOfferedNorDeletedAndHoldNobodyUp)
{
    const QString pipe = home.filePath("pipe.gla");
    run->changedDocument("word")->setDocName(pipe);
    run->keeper.flush();
    restart();
    ASSERT_EQ(::mkfifo(qPrintable(pipe), 0600), 0);
    const QString path = run->keeper.orphans().at(0).path;
    const QByteArray whole = readFile(path);
    for (qsizetype size = 0; size < whole.size(); size += 7) {
        QByteArray damaged = size ? whole.left(size) : whole + 'x';
        QBuffer device(&damaged);
        ASSERT_TRUE(device.open(QIODevice::ReadOnly));
        EXPECT_FALSE(RecoveryCopy::read(device)) << size;
    }
    ASSERT_TRUE(QFile::resize(path, RecoveryCopy::LargestSize + 1));
    EXPECT_TRUE(run->keeper.orphans().empty());
    EXPECT_EQ(copies().size(), 1);
}

TEST_F(RecoveryTest, AKillWithinSavingMakesTheFileNeitherStrangeNorUnsaved)
{
    run->prompts.savePath = home.filePath("words.gla");
    frmDoc *document = run->changedDocument("old");
    run->files.save();
    document->Rutor()->setTextMatrix(1, 1, "new");
    run->keeper.flush();
    restart();
    run->keeper.recover(run->keeper.orphans().at(0));
    document = run->documents.open().front();
    run->documents.setActive(document);
    const QString copy = copies().at(0);
    const QByteArray bytes = readFile(copy);
    run->files.save();
    EXPECT_TRUE(run->alert.shown.empty()) << "a crash does not make the file another one";
    run->keeper.flush();
    writeFile(copy, bytes); // killed before the copy was removed
    restart();
    EXPECT_TRUE(run->keeper.orphans().empty()) << "all of it is in the file";
    EXPECT_TRUE(copies().isEmpty());
}
