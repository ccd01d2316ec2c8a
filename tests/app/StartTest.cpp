#include "app/modKod.h"

#include "app/frmApp.h"
#include "app/rules/CommandLine.h"
#include "document/DocumentList.h"
#include "document/frmDoc.h"

#include <csignal>

namespace {

template <typename Window> Window *shown(const char *name)
{
    for (QWidget *each : QApplication::topLevelWidgets()) {
        if (each->isVisible() && each->inherits(name))
            return dynamic_cast<Window *>(each);
    }
    return nullptr;
}

/// Runs the program until its file is open and changed, then has it ended by signals while a dialog waits. Returns what
/// was on the screen, one after the other.
QStringList run(const CommandLine &line)
{
    QStringList seen;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&seen] {
        auto *window = shown<frmApp>("frmApp");
        QWidget *modal = QApplication::activeModalWidget();
        const bool words = window && window->context().documents.active();
        const QString now =
            QString(shown<QWidget>("frmSplash") ? "splash " : "") + (window ? "window " : "") + (words ? "words" : "");
        if (auto *box = qobject_cast<QMessageBox *>(modal)) {
            seen += "asks";
            box->button(seen.count("asks") == 1 ? QMessageBox::Cancel : QMessageBox::No)->click();
        } else if (seen.isEmpty() || seen.last() != now) {
            seen += now;
        } else if (modal) {
            ::raise(SIGTERM);
        } else if (words) {
            window->context().documents.active()->setDirty(true);
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
    line.text =
        writeFile(folder.filePath("words.gla"), "Glosaria\r\n3.1.0\r\n[Font Info]\r\n\"Arial\"\r\n10\r\n#FALSE#\r\n"
                                                "#FALSE#\r\n0\r\n[Vocabulary]\r\nEnglish\r\nGerman\r\n");
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(run(line).join(", "), "splash , splash window , window words, asks, window words, asks");
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
