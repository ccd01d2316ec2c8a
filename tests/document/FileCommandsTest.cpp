#include "document/ctlGrid.h"
#include "resources/StringTable.h"
#include "support/OpenFiles.h"

#include <QProgressBar>

namespace {

struct FileCommandsTest : ::testing::Test, OpenFiles
{
    QTemporaryDir folder;

    QString path(const QString &name) const { return folder.filePath(name); }
    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path(name);
    }
    QByteArray read(const QString &filePath) const
    {
        QFile file(filePath);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QByteArray vocabulary(const QByteArray &version)
    {
        return "Glosaria\r\n" + version +
               "\r\n\r\n[Font Info]\r\n\"Arial\"\r\n12.5\r\n#TRUE#\r\n#FALSE#\r\n255\r\n\r\n[Grid "
               "Info]\r\n500\r\n3000\r\n"
               "2000\r\n2\r\n\r\n[Vocabulary]\r\nEnglish   [0000000285]\r\nGerman\r\nhouse   [0000000600]\r\nHaus\r\n"
               "tree   [0000000301]\r\nBaum\r\n";
    }
};

} // namespace

TEST_F(FileCommandsTest, ALoadedFileFillsADocumentAndIsSavedAsItWas)
{
    const QByteArray bytes = vocabulary("3.1.0");
    const QString file = write(QStringLiteral("Words.gla"), bytes);
    prompts.openPath = file;
    files.open();
    ASSERT_EQ(documents.open().size(), 1u);
    frmDoc &document = *documents.open().front();
    const ctlGrid &grid = *document.Rutor();
    EXPECT_EQ(document.Caption(), QStringLiteral("Words"));
    EXPECT_EQ(document.DocName(), file);
    EXPECT_FALSE(document.Dirty());
    EXPECT_TRUE(document.isVisible());
    EXPECT_EQ(grid.Rows(), 4);
    EXPECT_EQ(grid.TextMatrix(1, 2), QStringLiteral("Haus"));
    EXPECT_EQ(grid.RowHeight(1), 600);
    EXPECT_EQ(grid.ColWidth(1), 3000);
    EXPECT_EQ(grid.Font().pointSizeF(), 12.5);
    EXPECT_EQ(grid.ForeColor(), 255);
    EXPECT_EQ(recent.File(1), file);
    EXPECT_EQ(status.text(0), resText(506));
    EXPECT_FALSE(status.findChild<QProgressBar *>());
    EXPECT_TRUE(alert.shown.empty());

    files.SaveVocabulary(document, path(QStringLiteral("Copy.gla")));
    EXPECT_EQ(read(path(QStringLiteral("Copy.gla"))), bytes);
    EXPECT_EQ(document.Caption(), QStringLiteral("Copy"));
}

TEST_F(FileCommandsTest, AFileWithoutAnyPairCanBeWrittenIn)
{
    const QByteArray bytes = vocabulary("3.1.0");
    files.LoadVocabulary(write(QStringLiteral("bare.gla"), bytes.first(bytes.indexOf("English"))));
    ASSERT_EQ(documents.open().size(), 1u);
    EXPECT_EQ(documents.open().front()->Rutor()->Rows(), 2);
    EXPECT_EQ(documents.open().front()->language(2), resText(502));
}

TEST_F(FileCommandsTest, EveryFailureHasItsMessageAndLeavesNoWindow)
{
    struct Case
    {
        QString name;
        QByteArray bytes;
        QString prompt;
        int helpId;
        size_t documents;
    };
    const QString missing = path(QStringLiteral("missing.gla"));
    QDir().mkdir(path(QStringLiteral("x.gla")));
    const auto cannotOpen = [this](const QString &name) -> QString { return resText(712) + path(name); };
    const std::initializer_list<Case> cases{
        {"bad.gla", "glosaria\r\n3\r\n", resText(713) + path("bad.gla") + resText(714), 1420, 0},
        {"newer.gla", vocabulary("4.0.0"), resText(722).replace("%1", "newer"), 1440, 0},
        {"older.gla", "Glosaria\r\n2\r\nA\r\nB\r\none\r\neins\r\n", resText(721).replace("%1", "older"), 1430, 1},
        {"odd.gla", vocabulary("3.1.0") + "half\r\n", cannotOpen("odd.gla"), 0, 0},
        {"letter.gla", "Glosaria\r\nx\r\n", cannotOpen("letter.gla"), 0, 0},
        {"size.gla", vocabulary("3.1.0").replace("12.5", "1e9"), cannotOpen("size.gla"), 0, 0},
        {"x.gla", {}, cannotOpen("x.gla"), 0, 0},
        {"missing.gla", {}, cannotOpen("missing.gla"), 0, 0},
    };
    for (const Case &c : cases) {
        alert.shown.clear();
        if (!c.bytes.isEmpty())
            write(c.name, c.bytes);
        const size_t before = documents.open().size();
        files.LoadVocabulary(path(c.name));
        EXPECT_EQ(alert.onlyPrompt(), c.prompt);
        EXPECT_EQ(alert.shown.front().helpId, c.helpId);
        EXPECT_EQ(alert.shown.front().buttons, c.helpId ? Alert::OkHelp : Alert::Ok);
        EXPECT_EQ(documents.open().size() - before, c.documents) << c.name.toStdString();
        EXPECT_EQ(status.text(0), resText(506));
    }
    EXPECT_EQ(recent.FileCount(), 1) << "only the older file was opened";
}

TEST_F(FileCommandsTest, AFileIsOpenOnceWhateverTheCaseOfItsName)
{
    const QString file = write(QStringLiteral("Words.gla"), vocabulary("3.1.0"));
    files.LoadVocabulary(file);
    files.LoadVocabulary(file.toUpper());
    EXPECT_EQ(alert.onlyPrompt(), resText(710) + file.toUpper() + resText(711));
    EXPECT_EQ(alert.shown.front().helpId, 1410);
    EXPECT_EQ(documents.open().size(), 1u);
}

TEST_F(FileCommandsTest, UntitledNumbersAreNotUsedTwice)
{
    EXPECT_EQ(newDocument()->Caption(), QStringLiteral("Untitled 1"));
    files.closeActive();
    EXPECT_TRUE(documents.open().empty());
    EXPECT_EQ(newDocument()->Caption(), QStringLiteral("Untitled 2"));
    EXPECT_EQ(documents.slot(0), nullptr);
    EXPECT_EQ(documents.slot(1), documents.active());
}

TEST_F(FileCommandsTest, SaveAsksForANameOnceAndCommitsTheRunningEdit)
{
    frmDoc &document = *newDocument();
    QApplication::setActiveWindow(&document);
    document.Rutor()->Select(1, 1, 1, 1);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("one"));
    files.save();
    EXPECT_TRUE(document.Dirty()) << "the dialog was cancelled";
    EXPECT_EQ(prompts.proposed, QStringList{QStringLiteral("Untitled 1")});

    prompts.savePath = path(QStringLiteral("Numbers.gla"));
    files.save();
    EXPECT_FALSE(document.Dirty());
    EXPECT_EQ(document.Caption(), QStringLiteral("Numbers"));
    EXPECT_TRUE(read(prompts.savePath).contains("one   [0000000285]"));
    EXPECT_EQ(recent.File(1), prompts.savePath);
    files.save();
    EXPECT_EQ(prompts.proposed.size(), 2);
}

TEST_F(FileCommandsTest, AFailedSaveKeepsTheDocumentAsItWas)
{
    frmDoc &document = *newDocument();
    document.setDirty(true);
    files.SaveVocabulary(document, path(QStringLiteral("no/such/folder.gla")));
    EXPECT_TRUE(document.Dirty());
    EXPECT_EQ(document.DocName(), QString());
    EXPECT_EQ(document.Caption(), QStringLiteral("Untitled 1"));
    EXPECT_EQ(status.text(0), resText(506));
}

TEST_F(FileCommandsTest, TheClosingQuestionDecides)
{
    struct Case
    {
        AlertBox::Answer answer;
        bool closes;
        bool saved;
    };
    for (const Case &c : {Case{AlertBox::AnswerCancel, false, false}, Case{AlertBox::AnswerNo, true, false},
                          Case{AlertBox::AnswerYes, true, true}}) {
        frmDoc *document = newDocument();
        document->setCaption(QStringLiteral("Untitled 1"));
        document->Rutor()->setTextMatrix(1, 1, QStringLiteral("word"));
        document->setDirty(true);
        alert.shown.clear();
        alert.answers = {c.answer};
        prompts.savePath = path(QStringLiteral("closed%1.gla").arg(c.answer));
        files.closeActive();
        EXPECT_EQ(alert.onlyPrompt(), QStringLiteral("The text in [Untitled 1] has changed.\r\n"
                                                     "Do you want to save the changes?"));
        EXPECT_EQ(alert.shown.front().helpId, 1400);
        EXPECT_EQ(documents.open().empty(), c.closes);
        EXPECT_EQ(QFile::exists(prompts.savePath), c.saved);
        if (!c.closes)
            document->setDirty(false);
        files.closeAll();
    }
}

TEST_F(FileCommandsTest, YesWithoutANameClosesAllTheSame)
{
    newDocument()->setDirty(true);
    alert.answers = {AlertBox::AnswerYes};
    files.closeActive();
    EXPECT_TRUE(documents.open().empty());
}

TEST_F(FileCommandsTest, ClosingAllStopsAtTheFirstRefusalAndAsksAgainLater)
{
    newDocument();
    newDocument()->setDirty(true);
    newDocument();
    alert.answers = {AlertBox::AnswerCancel, AlertBox::AnswerNo};
    EXPECT_FALSE(files.closeAll());
    EXPECT_EQ(documents.open().size(), 2u);
    EXPECT_TRUE(files.closeAll());
    EXPECT_TRUE(documents.open().empty());
    EXPECT_EQ(alert.shown.size(), 2u);
}

TEST_F(FileCommandsTest, AFileThatAnotherProgramHasChangedIsReplacedOnlyIfWanted)
{
    const QString file = write(QStringLiteral("shared.gla"), vocabulary("3.1.0"));
    files.LoadVocabulary(file);
    frmDoc &document = *documents.open().front();
    documents.setActive(&document);
    document.setDirty(true);
    const QByteArray other = vocabulary("3.1.0") + "river   [0000000285]\r\nFluss\r\n";
    write(QStringLiteral("shared.gla"), other);

    alert.answers = {AlertBox::AnswerNo, AlertBox::AnswerYes, AlertBox::AnswerNo};
    files.save();
    EXPECT_FALSE(files.closeAll());
    EXPECT_EQ(read(file), other);
    EXPECT_EQ(documents.open().size(), 1u);

    alert.answers = {AlertBox::AnswerYes, AlertBox::AnswerYes};
    EXPECT_TRUE(files.closeAll());
    EXPECT_EQ(read(file), vocabulary("3.1.0"));
}
