#include "MainWindowFixture.h"

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
    const QString commands = readFile(SOURCE_FOLDER "/tests/app/data/dialogs.txt");
    for (const QString &each : commands.split('\n', Qt::SkipEmptyParts)) {
        const QString command = each.section(' ', 0, 0), keys = each.section(' ', 2);
        const int id = each.section(' ', 1, 1).toInt();
        EXPECT_TRUE(inDialog(command, [&](QDialog &dialog) {
            SCOPED_TRACE(dialog.objectName().toStdString());
            QApplication::setActiveWindow(&dialog);
            EXPECT_TRUE(status(0) == resText(504) || id == 1250 || dialog.objectName() == "frmOva");
            EXPECT_EQ(dialog.parentWidget(), window.get());
            expectTopic(dialog.focusWidget() ? dialog.focusWidget() : &dialog, id);
            if (auto *link = dialog.findChild<QWidget *>("imgLink1")) {
                link->setFocus();
                EXPECT_EQ(status(0), resText(2002));
            }
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

TEST_F(HelpTest, EveryButtonHasItsTextsANameAndAPictureAndNoSeparatorHas)
{
    newDocument();
    window->resize(1400, 700);
    QString found; // of each button its texts, the ids of what What's This and F1 explain, and its menu
    for (const char *command : {"", "mnuFilePrintPreview"}) {
        window->DoMenuClick(command);
        QCoreApplication::processEvents();
        auto *bar = window->findChild<QToolBar *>(*command ? "tbrPreview" : "tbrStandard");
        EXPECT_FALSE(bar->isMovable() || bar->isFloatable() || bar->toggleViewAction()->isEnabled());
        const auto *more = bar->findChild<QToolButton *>("qt_toolbar_ext_button");
        found += bar->windowTitle() + " | " + more->accessibleName() + " | " + more->toolTip() + '\n';
        for (QAction *action : bar->actions()) {
            QWidget *shown = bar->widgetForAction(action);
            QEvent enter(QEvent::Enter);
            QApplication::sendEvent(shown, &enter);
            const auto *button = qobject_cast<QToolButton *>(shown);
            found += "    " + action->objectName() + (action->icon().isNull() ? " | " : " * ");
            found += button ? action->toolTip() + " | " + shown->accessibleName() + " | " + status(0) : "-";
            help.calls.clear();
            textsAt(shown);
            QCursor::setPos(shown->mapToGlobal(QPoint(2, 9)));
            QTest::keyClick(window.get(), Qt::Key_F1);
            QCursor::setPos(QPoint());
            EXPECT_TRUE(help.calls.empty() && !QWhatsThis::inWhatsThisMode());
            for (const int id : help.popUps)
                found += ' ' + QString::number(id);
            if (button && button->menu())
                found += ' ' + button->menu()->objectName() + ' ' + QString::number(button->popupMode());
            found += '\n';
        }
    }
    EXPECT_EQ(documents().open().size(), 1u) << "a button was pressed";
    expectAsIn("buttons.txt", found);
}

TEST_F(HelpTest, WhatsThisExplainsTheGridOrTheWindowBelowThePointerAndEnds)
{
    ctlGrid *grid = newDocument()->Rutor();
    EXPECT_EQ(textsAt(grid, {80, 60}), std::vector{20042});
    EXPECT_EQ(help.popUpPlace, grid->mapToGlobal(QPoint(80, 70)));
    EXPECT_NE(textsAt(&window->context().status, {5, 5}), std::vector{20042});
    EXPECT_TRUE(inDialog("mnuVocabularySort", [this](QDialog &dialog) {
        EXPECT_EQ(textsAt(&dialog, {2, 2}), std::vector{dialog.property("whatsThisId").toInt()});
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
