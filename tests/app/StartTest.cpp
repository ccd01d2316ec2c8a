#include "MainWindowFixture.h"

#include "app/ToolkitLanguage.h"
#include "app/modKod.h"
#include "app/rules/CommandLine.h"
#include "platform/FileAssociation.h"
#include "platform/files/UserFolders.h"
#include "platform/instance/InstancePlace.h"
#include "platform/instance/SingleInstance.h"
#include "resources/TextLanguage.h"

#include <csignal>
#include <thread>

namespace {

/// Runs the program until its file is open and changed and another copy of it has handed over a second one, then has it
/// ended by signals while a dialog waits. Returns what was on the screen, one after the other.
QStringList run(const CommandLine &line, const QString &second)
{
    QStringList seen;
    QTimer watch;
    std::thread other;
    const auto startOther = [&second] { SingleInstance(InstancePlace::socketPath()).start(second, {}); };
    QObject::connect(&watch, &QTimer::timeout, [&] {
        frmApp *window = nullptr;
        bool splash = false;
        for (QWidget *each : QApplication::topLevelWidgets()) {
            splash |= each->isVisible() && each->inherits("frmSplash");
            window = each->isVisible() && each->inherits("frmApp") ? static_cast<frmApp *>(each) : window;
        }
        QWidget *modal = QApplication::activeModalWidget();
        QStringList now{splash ? "splash" : ""};
        if (window) {
            now += "window in mode " + QString::number(window->buttonPicture("Model") - 22);
            for (const frmDoc *each : window->context().documents.open())
                now += each->Caption() + (each->Dirty() ? "*" : "");
        }
        now.removeAll("");
        if (other.joinable() && now.size() == 2)
            return; // the second file is on its way
        if (auto *box = qobject_cast<QMessageBox *>(modal)) {
            EXPECT_EQ(box->parentWidget(), window);
            seen += QDir(UserFolders::state() + "/recovery").isEmpty() ? "asks" : "asks with a copy";
            box->button(seen.filter("asks").size() == 1 ? QMessageBox::Cancel : QMessageBox::No)->click();
        } else if (seen.isEmpty() || seen.last() != now.join(' ')) {
            seen += now.join(' ');
        } else if (modal) {
            ::raise(SIGTERM);
        } else if (window && window->context().documents.open().size() == 1 && !other.joinable()) {
            frmDoc &words = *window->context().documents.open().front();
            window->DoMenuClick("Model");
            words.Rutor()->setTextMatrix(1, 1, "changed");
            words.setDirty(true);
            window->showMinimized();
            other = std::thread(startOther);
        } else if (now.size() == 3) {
            EXPECT_FALSE(window->isMinimized());
            EXPECT_TRUE(QApplication::style()->inherits("ProgramStyle"));
            for (const char *kept : {"", "/a/kept"}) {
                Q_EMIT window->context().memory->troubled(MemoryTrouble::Locked, kept);
                EXPECT_EQ(window->context().status.text(0), *kept ? resText(14445).arg("kept") : resText(14442));
            }
            QTimer::singleShot(0, window, [window] { window->DoMenuClick("mnuVocabularyLanguage"); });
        }
    });
    watch.start(20);
    bool wasBusy = false;
    EXPECT_TRUE(modKod::run(*qApp, line, [&] { wasBusy = QApplication::overrideCursor(); }) == 0 && wasBusy);
    other.join();
    QApplication::setStyle("Fusion");
    return seen;
}

TEST(Start, ShowsSplashWindowAndFileInTurnAndASignalEndsItAmidADialog)
{
    const QTemporaryDir folder;
    CommandLine line;
    line.text = writeFile(folder.filePath("words.gla"), emptyVocabulary());
    const QString second = writeFile(folder.filePath("second.gla"), emptyVocabulary());
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(run(line, second).join(", ").toStdString(),
              "splash, splash window in mode 1, window in mode 1 words, window in mode 2 words* second, asks "
              "with a copy, window in mode 2 words* second, asks with a copy");
    EXPECT_GE(clock.elapsed(), 3000);
    EXPECT_TRUE(FileAssociation::isInstalled() ||
                QFile::exists(UserFolders::sharedData() + "/applications/glosaria.desktop"));
    line.splash = false;
    EXPECT_EQ(
        run(line, second).join(", ").toStdString(),
        "window in mode 2 words, window in mode 3 words* second, asks with a copy, window in mode 3 words* second, "
        "asks with a copy")
        << "in the mode of the last time";
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST(Start, AnswersQuestionsWithoutADisplay)
{
    // an option, what is printed begins with, what is complained of, and the exit code
    const std::tuple<const char *, const char *, QString, int> cases[] = {
        {"--help", "Usage: glosaria", "", 0},
        {"--version", "Glosaria 3.1.0\n", "", 0},
        {"--nonsense", "", resText(12602).arg("--nonsense") + '\n' + resText(12601) + '\n', 2},
        {"--language=xx", "", resText(14900).arg("xx", TextLanguage::available().join(", ")) + '\n', 2}};
    for (const auto &[option, text, complaint, code] : cases) {
        int exitCode = 99;
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_TRUE(modKod::answer(CommandLine::parse({option}, "/"), exitCode));
        EXPECT_EQ(exitCode, code);
        EXPECT_EQ(testing::internal::GetCapturedStdout().substr(0, strlen(text)), text);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), complaint.toStdString());
    }
    int exitCode = 0;
    EXPECT_FALSE(modKod::answer(CommandLine::parse({"words.gla"}, "/"), exitCode));
    EXPECT_EQ(modKod::textLanguage(CommandLine::parse({"--language", "fr"}, "/")), "fr");
    const QTemporaryDir folder;
    const QString list = writeFile(folder.filePath("a.csv"), "a,b\n"), vocabulary = folder.filePath("a.gla");
    EXPECT_EQ(modKod::convert({list}), 2);
    EXPECT_EQ(modKod::convert({list, vocabulary}), 0);
    EXPECT_TRUE(readFile(vocabulary).contains("a   [0000000285]\r\nb\r\n"));
    {
        const ToolkitLanguage arabic(*qApp, "ar");
        EXPECT_EQ(QApplication::layoutDirection(), Qt::RightToLeft);
        EXPECT_FALSE(QCoreApplication::translate("QLineEdit", "Select All").contains('S'));
        EXPECT_FALSE(QCoreApplication::translate("QAbstractFileIconProvider", "Folder").contains('F'));
        const QList<QByteArray> own =
            readFile(SOURCE_FOLDER "/src/resources/toolkit.ar.txt").split('\n')[2].split('\t');
        EXPECT_EQ(QCoreApplication::translate("QPrintDialog", own[0].constData()), QString::fromUtf8(own[1]));
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

} // namespace
