#pragma once

#include "app/DocumentArea.h"
#include "app/frmApp.h"
#include "document/DocumentCopies.h"
#include "document/DocumentList.h"
#include "document/ctlGrid.h"
#include "document/rules/file/CodePage.h"
#include "memory/StoredMemory.h"
#include "platform/ClipboardOwner.h"
#include "platform/SoundPlayer.h"
#include "platform/registry/RegistryTree.h"
#include "quiz/rules/RandomSource.h"
#include "resources/StringTable.h"
#include "services/desktop/PasteGuard.h"
#include "services/rules/ProgramFlags.h"
#include "services/settings/clsAppProperties.h"
#include "services/status/modSBFunc.h"
#include "support/RecordingHelp.h"
#include "support/RecordingPrinter.h"
#include "support/ScriptedAlertBox.h"
#include "support/ScriptedDialogs.h"
#include "support/ScriptedPrompts.h"
#include "widgets/LetterRow.h"

/// One of the current version without any word.
inline QByteArray emptyVocabulary()
{
    return "Glosaria\r\n3.1.0\r\n[Font Info]\r\n\"Arial\"\r\n10\r\n#FALSE#\r\n#FALSE#\r\n0\r\n[Vocabulary]\r\nEnglish"
           "\r\nGerman\r\n";
}

/// The main window with stand-ins for what comes from outside, shown on the offscreen platform.
struct MainWindowFixture : ::testing::Test, DocumentCopies
{
    QTemporaryDir folder;
    RegistryTree store;
    clsAppProperties settings{store, "/usr/bin/glosaria"};
    ProgramFlags flags;
    UndoRecord undo;
    ScriptedAlertBox alert;
    ScriptedPrompts prompts;
    RecordingPrinter printer;
    ScriptedDialogs dialogs;
    CodePage codePage;
    SeededRandom random{1};
    DesktopSoundPlayer silence{QByteArray()};
    RecordingHelp help;
    ClipboardOwner clipboardOwner;
    PasteGuard pasteGuard{*qApp, clipboardOwner};
    StoredMemory memory{folder.filePath("memory.sqlite"), [] { return QDateTime::currentDateTime(); }};
    StoredMemory *given = &memory; ///< what the window gets of it
    std::unique_ptr<frmApp> window;

    void SetUp() override
    {
        window = std::make_unique<frmApp>(frmApp::Needs{flags, undo, settings, store, alert, prompts, *this, printer,
                                                        dialogs, codePage, random, silence, help, pasteGuard,
                                                        SOURCE_FOLDER "/samples", given});
        window->show();
        QApplication::setActiveWindow(window.get());
    }
    bool secure(frmDoc &) override { return true; }
    DocumentList &documents() { return window->context().documents; }
    QString status(int panel) { return window->context().status.text(panel); }
    frmDoc *newDocument()
    {
        window->DoMenuClick("mnuFileNew");
        return documents().active();
    }
    /// The words of a grid, "a|b" a row, the names first.
    static QString words(const FlexGrid &grid)
    {
        QStringList rows;
        for (int row = 0; row < grid.Rows(); ++row)
            rows += grid.TextMatrix(row, 1) + '|' + grid.TextMatrix(row, 2);
        return rows.join(", ");
    }
    QString words() { return words(*documents().active()->Rutor()); }
    QMenu *menu(const QString &key) { return window->menuBar()->findChild<QMenu *>(key); }
    /// The captions of a menu as it drops down, without mnemonics; "-" for a separator, "(x)" for a disabled entry.
    QStringList entries(const QString &key)
    {
        Q_EMIT menu(key)->aboutToShow();
        QStringList list;
        for (const QAction *action : menu(key)->actions()) {
            const QString text = action->isSeparator() ? "-" : action->text().remove(QLatin1Char('&'));
            list.append(action->isEnabled() || action->isSeparator() ? text : QStringLiteral("(%1)").arg(text));
        }
        return list;
    }
    /// Compares with a file of data/.
    static void expectAsIn(const char *name, const QString &found)
    {
        EXPECT_EQ(found.toStdString(), readFile(QString(SOURCE_FOLDER "/tests/app/data/") + name).toStdString());
    }
    /// All that a user sees of the window; its documents with > the active one, * changed, + maximised, - minimised.
    QStringList parts()
    {
        const frmDoc *active = documents().active();
        const ctlGrid *grid = active ? active->Rutor() : nullptr;
        const QWidget *focus = QApplication::focusWidget();
        QStringList open, words, titles, refused, checks, others;
        for (const frmDoc *each : documents().open()) {
            const QWidget &frame = *each->frame();
            open += (each == active ? ">" : "") + each->Caption() + (each->Dirty() ? "*" : "") +
                    (frame.isVisible() ? "" : "hidden ") +
                    (frame.isMaximized()   ? "+"
                     : frame.isMinimized() ? "-"
                                           : "");
        }
        for (int row = 1; grid && row < 4; ++row)
            words += grid->TextMatrix(row, 1) + '-' + grid->TextMatrix(row, 2);
        for (const QAction *title : window->menuBar()->actions()) {
            titles += title->isVisible() ? title->text() : "";
            refused += title->isVisible() ? entries(title->menu()->objectName()).filter("(") : QStringList();
        }
        for (const QToolBar *bar : window->findChildren<QToolBar *>()) {
            for (const QAction *action : bar->isVisible() ? bar->actions() : QList<QAction *>())
                refused += action->isEnabled() ? "" : action->objectName();
        }
        for (const Command *each : window->commands().commands())
            checks +=
                window->commands().action(each->key)->isChecked() ? window->commands().action(each->key)->text() : "";
        for (const QWidget *each :
             window->findChildren<QWidget *>(QRegularExpression("^(frm.*|StartPage|PreviewArea)$")))
            others += each->isVisible() ? each->objectName() + each->windowTitle() : "";
        for (const LetterRow *each : window->findChildren<LetterRow *>()) {
            for (const QToolButton *letter : each->findChildren<QToolButton *>())
                others += each->isVisible() ? letter->text() : "";
        }
        others += alert.told().remove(QRegularExpression("\r[^|]*"));
        const QString rows = grid ? QString(" of %1 rows, %2%").arg(grid->Rows() - 1).arg(grid->Zoom()) : "";
        QStringList all{"documents: " + open.join(" | "), "words: " + words.join(' ') + rows};
        all << "edit: " + (grid && grid->EditMode() ? '[' + grid->EditText() + "] " + grid->SelText() : "")
            << "said: " + status(0);
        all << "cell:" + status(1) << "mode: " + status(2) << "undo: " + window->UndoAction();
        all << QString("focus: ") + (focus ? focus->metaObject()->className() : "") << "shown: " + others.join(' ');
        all << "checked: " + checks.join(' ') << "menus: " + titles.join(' ') << "refused: " + refused.join(' ');
        all << "help: " + (help.calls.empty()
                               ? ""
                               : help.calls.back().data.toString() + QString::number(help.calls.back().command));
        all << QString("pictures: %1 %2").arg(window->buttonPicture("Model")).arg(window->buttonPicture("Quiz"));
        for (QString &each : all)
            each = each.simplified().replace(", ", ",");
        return all;
    }
    /// What of that has changed since the last call.
    QString news()
    {
        QCoreApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (!QApplication::focusWidget())
            QApplication::setActiveWindow(window.get());
        QStringList changed;
        const QStringList now = parts();
        for (qsizetype i = 0; i < now.size(); ++i)
            changed += seen.value(i) == now[i] ? QString() : now[i];
        changed.removeAll("");
        seen = now;
        return changed.join("; ");
    }
    QStringList seen;
    QToolButton *button(const QString &band, const QString &key)
    {
        auto *bar = window->findChild<QToolBar *>(band);
        return qobject_cast<QToolButton *>(bar->widgetForAction(bar->findChild<QAction *>(key)));
    }
    using Visitor = std::function<void(QDialog &)>;
    static void visit(QDialog &dialog, const Visitor &visitor)
    {
        visitor(dialog);
        if (dialog.isVisible())
            dialog.reject();
    }
    /// Gives the modal dialog that opens next to the visitor, and leaves it when it is still open then.
    void inNextDialog(const Visitor &visitor)
    {
        QTimer::singleShot(0, window.get(), [visitor] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                visit(*dialog, visitor);
        });
    }
    /// Runs a command and does so with its dialog, modal or not; false when none opened.
    bool inDialog(const QString &command, const Visitor &visitor)
    {
        bool opened = false;
        const Visitor noting = [&](QDialog &dialog) { visitor(dialog), opened = true; };
        inNextDialog(noting);
        window->DoMenuClick(command);
        for (QDialog *modeless : window->findChildren<QDialog *>()) {
            if (modeless->isVisible())
                visit(*modeless, noting);
        }
        QTest::qWait(1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return opened;
    }
    QString writeVocabulary(const QString &name) { return writeFile(folder.filePath(name), emptyVocabulary()); }
};
