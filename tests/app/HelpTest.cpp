#include "MainWindowFixture.h"

#include "app/MenuLayout.h"
#include "print/PrintCommands.h"
#include "services/FormTexts.h"
#include "services/help/DialogHelp.h"
#include "services/help/rules/HelpBook.h"
#include "support/TextLetters.h"

namespace {

struct HelpTest : MainWindowFixture
{
    DialogHelp dialogHelp{help, alert, HelpTarget::ofProgram()};

    /// Expects that F1 in the widget asks for the topic, and that there is one.
    void expectTopic(QWidget *widget, int id)
    {
        static const auto topics = parseHelpContexts(readFile(SOURCE_FOLDER "/src/resources/help/context.txt"));
        help.calls.clear();
        QTest::keyClick(widget, Qt::Key_F1);
        EXPECT_EQ(help.calls, (std::vector{RecordingHelp::Call{"Main", HH_HELP_CONTEXT, id}}));
        EXPECT_TRUE(topics.contains(id)) << id;
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
};

/// What a user can click or type into.
bool isControl(const QWidget *widget)
{
    const bool isPart = widget->objectName().startsWith("qt_") || qobject_cast<QComboBox *>(widget->parentWidget());
    return widget->isVisible() && !isPart &&
           (widget->inherits("QAbstractButton") || widget->inherits("QLineEdit") || widget->inherits("QComboBox") ||
            widget->inherits("QAbstractSpinBox"));
}

int textOf(const QWidget *widget)
{
    const int id = widget->isWindow() ? -1 : widget->property("whatsThisId").toInt();
    return id ? std::max(id, 0) : textOf(widget->parentWidget());
}

/// The letters by which the controls of a window are reached, in the order of the controls.
QString mnemonics(const QWidget &window)
{
    QString letters;
    QList<int> texts;
    for (const QWidget *control : window.findChildren<QWidget *>()) {
        if (!control->isVisible())
            continue;
        letters += QKeySequence::mnemonic(control->property("text").toString()).toString().right(1);
        texts += control->property("textId").toInt();
    }
    expectDifferentLetters(texts, window.objectName());
    return letters;
}

TEST_F(HelpTest, EveryControlOfEveryDialogHasATopicATextANameAndAKey)
{
    newDocument()->Rutor()->setWords({"", "1", "2", "3", "4", ""}, {"", "5", "6", "7", "8", ""}, {});
    QGuiApplication::clipboard()->setText("a - b");
    // a command, the topic of its dialog, and the letters of the controls
    const QString commands = "mnuEditFind 1160 FD12MWNRC, mnuEditReplace 1170 FED12MWNRAC, "
                             "mnuEditPasteList 3030 S12WFMNT, mnuVocabularyLanguage 1180 12, "
                             "mnuVocabularyFont 1204 FSOBIU, mnuVocabularyRowHeight 1200 R, "
                             "mnuVocabularyColumnWidth 1200 C, mnuVocabularySort 1210 12ADS, "
                             "mnuVocabularyCheck 3040 LNTARC, mnuVocabularyProgress 3020 KNSFEC, "
                             "mnuFilePrintTest 3042 SF12BOUNETAKPV, mnuQuizStudy 1220 KOASCBR, "
                             "mnuQuizMultiple 1230 123ABR, mnuQuizQA 1240 HTBR, mnuHelpAbout 1250 , "
                             "mnuQuizOptions 3010 MCABROY";
    for (const QString &each : commands.split(", ")) {
        const QString command = each.section(' ', 0, 0), keys = each.section(' ', 2);
        const int id = each.section(' ', 1, 1).toInt();
        EXPECT_TRUE(inDialog(command, [&](QDialog &dialog) {
            SCOPED_TRACE(dialog.objectName().toStdString());
            QApplication::setActiveWindow(&dialog);
            EXPECT_TRUE(status(0) == resText(504) || id == 1250 || dialog.objectName() == "frmOva");
            EXPECT_EQ(dialog.parentWidget(), window.get());
            expectTopic(dialog.focusWidget() ? dialog.focusWidget() : &dialog, id);
            EXPECT_TRUE(dialog.windowFlags() & Qt::WindowContextHelpButtonHint);
            EXPECT_EQ(mnemonics(dialog), keys);
            QTest::mouseClick(dialog.findChild<QWidget *>("btnWhatsThis"), Qt::LeftButton);
            EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
            for (QWidget *control : dialog.findChildren<QWidget *>()) {
                if (!isControl(control))
                    continue;
                SCOPED_TRACE(control->objectName().toStdString());
                EXPECT_EQ(FormTexts::helpContextId(control), id);
                EXPECT_NE(textOf(control), 0);
                EXPECT_EQ(textsAt(control), std::vector{textOf(control)});
                const auto *button = qobject_cast<QAbstractButton *>(control);
                EXPECT_FALSE(control->accessibleName().isEmpty() && !(button && !button->text().isEmpty()));
            }
        })) << each.toStdString();
        EXPECT_EQ(status(0), resText(506)) << each.toStdString();
    }
    EXPECT_TRUE(alert.shown.empty());
}

TEST_F(HelpTest, F1AnswersByWhatTheMainWindowShows)
{
    for (const char *command : {"", "mnuFileNew", "mnuFilePrintPreview"}) {
        window->DoMenuClick(command);
        QTest::keyClick(window->focusWidget() ? window->focusWidget() : window.get(), Qt::Key_F1);
    }
    window->DoMenuClick("mnuHelpTopic");
    QStringList pages;
    for (const RecordingHelp::Call &call : help.calls)
        pages += call.data.toString();
    EXPECT_EQ(pages.join(' '), "html\\welcome.html html\\documentwindow.html html\\printpreviewwindow.html ");
    EXPECT_EQ(help.calls.back().command, HH_DISPLAY_TOC);
}

TEST_F(HelpTest, F1InADropDownOpensItsTopic)
{
    newDocument();
    int topic = 1030; // of the first menu; the others follow each ten
    for (const QAction *title : window->menuBar()->actions()) {
        title->menu()->popup(window->mapToGlobal(QPoint(0, 0)));
        expectTopic(title->menu(), std::exchange(topic, topic + 10));
        EXPECT_FALSE(title->menu()->isVisible());
    }
}

// The numbers of the texts run on, those of the status bar with one for each separator.
TEST_F(HelpTest, EveryButtonHasItsTextsANameAndAPictureAndNoSeparatorHas)
{
    newDocument();
    window->resize(1400, 700);
    for (auto [band, toolTip, inStatusBar, whatsThis] :
         {std::tuple("tbrStandard", 1000, 200, 20000), std::tuple("tbrPreview", 1101, 231, 20018)}) {
        if (whatsThis == 20018)
            window->DoMenuClick("mnuFilePrintPreview");
        QCoreApplication::processEvents();
        auto *bar = window->findChild<QToolBar *>(band);
        EXPECT_FALSE(bar->isMovable() || bar->isFloatable() || bar->toggleViewAction()->isEnabled());
        const auto *more = bar->findChild<QToolButton *>("qt_toolbar_ext_button");
        EXPECT_EQ(bar->windowTitle() + more->accessibleName() + more->toolTip(),
                  resText(whatsThis == 20000 ? 12622 : 12623) + resText(12624) + resText(12624));
        for (QAction *action : bar->actions()) {
            QWidget *shown = bar->widgetForAction(action);
            QEvent enter(QEvent::Enter);
            QApplication::sendEvent(shown, &enter);
            EXPECT_TRUE(action->isSeparator() || status(0) == resText(inStatusBar)) << inStatusBar;
            const Command *own = window->commands().find(action->objectName());
            EXPECT_TRUE(!own || toolTip == 1106 || (own->captionId == toolTip && own->helpId == inStatusBar))
                << toolTip;
            ++inStatusBar;
            help.calls.clear();
            textsAt(shown);
            QCursor::setPos(shown->mapToGlobal(QPoint(2, 9)));
            QTest::keyClick(window.get(), Qt::Key_F1);
            QCursor::setPos(QPoint());
            EXPECT_TRUE(help.calls.empty() && !QWhatsThis::inWhatsThisMode());
            EXPECT_EQ(help.popUps, action->isSeparator() ? std::vector<int>{} : std::vector({whatsThis, whatsThis}));
            if (action->isSeparator())
                continue;
            ++whatsThis;
            EXPECT_EQ(action->objectName() == "Undo" ? resText(1008) : action->toolTip(), resText(toolTip++));
            EXPECT_EQ(shown->accessibleName(), action->toolTip());
            EXPECT_FALSE(action->icon().isNull());
        }
    }
    EXPECT_EQ(documents().open().size(), 1u) << "a button was pressed";
    for (const auto &[key, name] : {std::pair("Model", "mnuMode"), {"Quiz", "mnuQuiz"}, {"Undo", ""}}) {
        const QToolButton &dropDown = *button("tbrStandard", key);
        EXPECT_EQ(dropDown.menu() ? dropDown.menu()->objectName() : "", name);
        EXPECT_EQ(dropDown.popupMode(), *name ? QToolButton::MenuButtonPopup : QToolButton::DelayedPopup);
    }
}

TEST_F(HelpTest, WhatsThisExplainsTheGridOrTheWindowBelowThePointerAndEnds)
{
    ctlGrid *grid = newDocument()->Rutor();
    EXPECT_EQ(textsAt(grid, {80, 60}), std::vector{20042});
    EXPECT_EQ(help.popUpPlace, grid->mapToGlobal(QPoint(80, 70)));
    EXPECT_TRUE(inDialog("mnuVocabularySort", [this](QDialog &dialog) {
        EXPECT_EQ(textsAt(&dialog, {2, 2}), std::vector{dialog.property("whatsThisId").toInt()});
        dialog.layout()->setEnabled(false);
        auto *hidden = dialog.findChild<QWidget *>("chkSelection");
        hidden->hide();
        EXPECT_NE(textsAt(hidden), std::vector{textOf(hidden)});
        EXPECT_FALSE(QWhatsThis::inWhatsThisMode());
    }));
}

TEST_F(HelpTest, ThePageOfShortcutsIsTrue)
{
    const QRegularExpression row(QStringLiteral(R"rx(<tr id="(\w+)"><td>([^<]*)</td><td>([^<]*)</td>)rx"));
    QStringList onPage;
    for (auto match = row.globalMatch(readFile(SOURCE_FOLDER "/src/resources/help/html/shortcuts.html"));
         match.hasNext();)
        onPage.append(match.next().capturedTexts().mid(1).join(QLatin1Char(' ')));
    QStringList inTable;
    for (const Command *command : window->commands().commands()) {
        const bool isUndo = command->captionId == 419;
        QString caption = isUndo ? QString("Undo") : FormTexts::withoutMnemonic(resText(command->captionId));
        if (command->shortcut.isEmpty())
            continue;
        inTable.append(command->key + u' ' + command->shortcut + u' ' + caption.remove("..."));
        EXPECT_EQ(inTable.filter(u' ' + command->shortcut + u' ').size(), 1);
    }
    onPage.sort();
    inTable.sort();
    EXPECT_EQ(onPage, inTable);
}

} // namespace
