#include "MainWindowFixture.h"

#include "app/modKod.h"
#include "app/rules/CommandLine.h"
#include "platform/files/UserFolders.h"

#include <csignal>

namespace {

QWidget *shown(const char *name)
{
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto is = [name](QWidget *each) { return each->isVisible() && each->inherits(name); };
    const auto found = std::find_if(all.begin(), all.end(), is);
    return found == all.end() ? nullptr : *found;
}

/// Runs the program until its file is open and changed, then has it ended by signals while a dialog waits. Returns what
/// was on the screen, one after the other.
QStringList run(const CommandLine &line)
{
    QStringList seen;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&seen] {
        auto *window = static_cast<frmApp *>(shown("frmApp"));
        QWidget *modal = QApplication::activeModalWidget();
        frmDoc *words = window ? window->context().documents.active() : nullptr;
        const QString now =
            QString(shown("frmSplash") ? "splash " : "") + (window ? "window " : "") + (words ? "words" : "");
        if (auto *box = qobject_cast<QMessageBox *>(modal)) {
            seen += QDir(UserFolders::state() + "/recovery").isEmpty() ? "asks" : "asks with a copy";
            box->button(seen.filter("asks").size() == 1 ? QMessageBox::Cancel : QMessageBox::No)->click();
        } else if (seen.isEmpty() || seen.last() != now) {
            seen += now;
        } else if (modal) {
            ::raise(SIGTERM);
        } else if (words) {
            words->Rutor()->setTextMatrix(1, 1, "changed");
            words->setDirty(true);
            QTimer::singleShot(0, window, [window] { window->DoMenuClick("mnuVocabularyLanguage"); });
        }
    });
    watch.start(20);
    EXPECT_EQ(modKod::run(*qApp, line), 0);
    QApplication::setStyle("Fusion");
    return seen;
}

TEST(Start, ShowsSplashWindowAndFileInTurnAndASignalEndsItAmidADialog)
{
    const QTemporaryDir folder;
    CommandLine line;
    line.text = writeFile(folder.filePath("words.gla"), emptyVocabulary());
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(run(line).join(", ").toStdString(),
              "splash , splash window , window words, asks with a copy, window words, asks with a copy");
    EXPECT_GE(clock.elapsed(), 3000);
    line.splash = false;
    EXPECT_FALSE(run(line).join(", ").contains("splash"));
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST(Start, AnswersQuestionsWithoutADisplay)
{
    // an option, what is printed begins with, what is complained of, and the exit code
    const std::tuple<const char *, const char *, const char *, int> cases[] = {{"--help", "Usage: glosaria", "", 0},
                                                                               {"--version", "Glosaria 3.1.0\n", "", 0},
                                                                               {"--nonsense", "", "--nonsense", 2},
                                                                               {"--language=xx", "", "xx", 2}};
    for (const auto &[option, text, complaint, code] : cases) {
        int exitCode = 99;
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_TRUE(modKod::answer(CommandLine::parse({option}, "/"), exitCode));
        EXPECT_EQ(exitCode, code);
        EXPECT_EQ(testing::internal::GetCapturedStdout().substr(0, strlen(text)), text);
        const std::string complained = testing::internal::GetCapturedStderr();
        EXPECT_TRUE(code ? complained.find(complaint) != std::string::npos : complained.empty()) << option;
    }
    int exitCode = 0;
    EXPECT_FALSE(modKod::answer(CommandLine::parse({"words.gla"}, "/"), exitCode));
    EXPECT_EQ(modKod::textLanguage(CommandLine::parse({"--language", "fr"}, "/")), "fr");
    EXPECT_EQ(modKod::convert({"one file"}), 2);
}

} // namespace
