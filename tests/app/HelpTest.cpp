#include "MainWindowFixture.h"

#include "app/CommandTable.h"
#include "app/MenuLayout.h"
#include "document/ctlGrid.h"
#include "print/PrintCommands.h"
#include "resources/StringTable.h"
#include "services/DialogHelp.h"
#include "services/FormTexts.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialog>
#include <QRegularExpression>
#include <QWhatsThis>

namespace {

struct HelpTest : MainWindowFixture
{
    DialogHelp dialogHelp{help, alert, HelpTarget::ofProgram()};

    static RecordingHelp::Call topic(int id) { return {QStringLiteral("Main"), HH_HELP_CONTEXT, id}; }
    static RecordingHelp::Call page(const char *name)
    {
        return {QStringLiteral("Main"), HH_DISPLAY_TOPIC, QString::fromLatin1(name)};
    }
    /// What a click in What's This mode shows at a widget's point, by default its middle.
    std::vector<int> textsAt(QWidget *widget, QPoint point = {-1, -1})
    {
        help.popUps.clear();
        QWhatsThis::enterWhatsThisMode();
        const QPoint place = point.x() < 0 ? widget->rect().center() : point;
        QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, {}, widget->mapTo(widget->window(), place));
        return help.popUps;
    }
    void fillWords()
    {
        for (int row = 1; row <= 4; ++row) {
            for (int col = 1; col <= 2; ++col)
                documents().active()->Rutor()->setTextMatrix(row, col, QString::number(10 * row + col));
        }
    }
    /// Runs a command and gives its dialog to the visitor while it is open.
    void inDialog(const QString &command, const std::function<void(QDialog &)> &visit)
    {
        bool seen = false;
        QTimer::singleShot(0, window.get(), [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (dialog) {
                seen = true;
                visit(*dialog);
                dialog->reject();
            }
        });
        window->DoMenuClick(command);
        for (QDialog *modeless : window->findChildren<QDialog *>()) {
            if (!modeless->isVisible())
                continue;
            seen = true;
            visit(*modeless);
            modeless->close();
        }
        QTest::qWait(1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(seen) << command.toStdString();
    }
};

/// What a user can click or type into.
bool isControl(const QWidget *widget)
{
    return widget->isVisible() && !widget->objectName().startsWith(QStringLiteral("qt_")) &&
           (qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
            qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget));
}

int textOf(const QWidget *widget)
{
    for (; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (const int id = widget->property("whatsThisId").toInt())
            return id;
    }
    return 0;
}

TEST_F(HelpTest, EveryControlOfEveryDialogHasATopicAndAText)
{
    newDocument();
    fillWords();
    const std::vector<std::pair<const char *, int>> commands{
        {"mnuEditFind", 1160},       {"mnuEditReplace", 1170},         {"mnuVocabularyLanguage", 1180},
        {"mnuVocabularyFont", 1204}, {"mnuVocabularyRowHeight", 1200}, {"mnuVocabularyColumnWidth", 1200},
        {"mnuVocabularySort", 1210}, {"mnuQuizStudy", 1220},           {"mnuQuizMultiple", 1230},
        {"mnuQuizQA", 1240},         {"mnuHelpAbout", 1250},
    };
    for (const auto &[command, id] : commands) {
        inDialog(QString::fromLatin1(command), [&](QDialog &dialog) {
            SCOPED_TRACE(command);
            QApplication::setActiveWindow(&dialog);
            help.calls.clear();
            QWidget *focus = dialog.focusWidget();
            QTest::keyClick(focus ? focus : &dialog, Qt::Key_F1);
            EXPECT_EQ(help.calls, std::vector{topic(id)});
            EXPECT_TRUE(dialog.windowFlags() & Qt::WindowContextHelpButtonHint);
            for (QWidget *control : dialog.findChildren<QWidget *>()) {
                if (!isControl(control))
                    continue;
                EXPECT_EQ(FormTexts::helpContextId(control), id) << control->objectName().toStdString();
                EXPECT_NE(textOf(control), 0) << control->objectName().toStdString();
                EXPECT_EQ(textsAt(control), std::vector{textOf(control)}) << control->objectName().toStdString();
            }
        });
    }
    EXPECT_TRUE(alert.shown.empty());
}

TEST_F(HelpTest, F1AnswersByWhatTheMainWindowShows)
{
    QTest::keyClick(window.get(), Qt::Key_F1);
    newDocument();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
    window->DoMenuClick(QStringLiteral("mnuFilePrintPreview"));
    QTest::keyClick(window.get(), Qt::Key_F1);
    EXPECT_EQ(help.calls, (std::vector{page("html\\welcome.html"), page("html\\documentwindow.html"),
                                       page("html\\printpreviewwindow.html")}));
}

TEST_F(HelpTest, F1InADropDownOpensItsTopic)
{
    newDocument();
    for (const MenuLayout::Menu &each : MenuLayout::menus()) {
        help.calls.clear();
        menu(each.key)->popup(window->mapToGlobal(QPoint(0, 0)));
        QTest::keyClick(menu(each.key), Qt::Key_F1);
        EXPECT_EQ(help.calls, std::vector{topic(each.helpContextId)});
        EXPECT_FALSE(menu(each.key)->isVisible());
    }
}

TEST_F(HelpTest, WhatsThisExplainsToolbarButtonsAndNoSeparators)
{
    newDocument();
    for (const auto &[band, first] : {std::pair("STANDARD", 20000), std::pair("PREVIEW", 20018)}) {
        if (first == 20018)
            window->DoMenuClick(QStringLiteral("mnuFilePrintPreview"));
        auto *bar = window->findChild<QToolBar *>(QString::fromLatin1(band));
        window->resize(1400, 700);
        QCoreApplication::processEvents();
        int expected = first;
        for (QAction *action : bar->actions()) {
            const std::vector<int> texts = textsAt(bar->widgetForAction(action));
            EXPECT_EQ(texts, action->isSeparator() ? std::vector<int>{} : std::vector{expected}) << expected;
            expected += !action->isSeparator();
            EXPECT_FALSE(QWhatsThis::inWhatsThisMode());
        }
    }
    EXPECT_EQ(documents().open().size(), 1u) << "a button was pressed";
}

TEST_F(HelpTest, WhatsThisExplainsTheGridBelowThePointer)
{
    ctlGrid *grid = newDocument()->Rutor();
    EXPECT_EQ(textsAt(grid, {80, 60}), std::vector{20042});
    EXPECT_EQ(help.popUpPlace, grid->mapToGlobal(QPoint(80, 70)));
}

TEST_F(HelpTest, TheHelpMenuShowsTheContents)
{
    window->DoMenuClick(QStringLiteral("mnuHelpTopic"));
    EXPECT_EQ(help.calls, (std::vector{RecordingHelp::Call{QStringLiteral("Main"), HH_DISPLAY_TOC, {}}}));
}

TEST_F(HelpTest, ThePageOfShortcutsIsTrue)
{
    QFile file(QStringLiteral(SOURCE_FOLDER "/src/resources/help/html/shortcuts.html"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QRegularExpression row(QStringLiteral(R"rx(<tr id="(\w+)"><td>([^<]*)</td><td>([^<]*)</td>)rx"));
    QStringList onPage;
    for (auto match = row.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext();)
        onPage.append(match.next().capturedTexts().mid(1).join(QLatin1Char(' ')));
    QStringList inTable;
    for (const Command *command : window->commands().commands()) {
        const bool isUndo = command->captionId == 419;
        QString caption = isUndo ? QStringLiteral("Undo") : FormTexts::withoutMnemonic(resText(command->captionId));
        if (!command->shortcut.isEmpty())
            inTable.append(command->key + u' ' + command->shortcut + u' ' + caption.remove(QStringLiteral("...")));
    }
    onPage.sort();
    inTable.sort();
    EXPECT_EQ(onPage, inTable);
}

} // namespace
