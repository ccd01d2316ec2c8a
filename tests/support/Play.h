#pragma once

#include "support/Files.h"

using Actions = std::map<QString, std::function<void()>>;

/// Plays "step -> state, step -> state": a step is one of the actions, a button of the window by its name, a key, or
/// letters for what has the focus; state tells what came of it.
inline void play(const QString &steps, const std::function<QString()> &state, const Actions &actions = {},
                 const QWidget *window = nullptr)
{
    for (const QString &line : steps.split(QStringLiteral(", "))) {
        const QString step = line.section(QStringLiteral(" -> "), 0, 0);
        if (const auto action = actions.find(step); action != actions.end())
            action->second();
        else if (auto *button = window ? window->findChild<QAbstractButton *>(step) : nullptr)
            QTest::mouseClick(button, Qt::LeftButton);
        else if (QKeySequence(step).toString() == step)
            QTest::keySequence(QApplication::focusWidget(), QKeySequence(step));
        else
            QTest::keyClicks(QApplication::focusWidget(), step);
        EXPECT_EQ((step + " -> " + state()).toStdString(), line.toStdString());
    }
}

/// The same from a file of the source tree, a step a line; one that changes nothing stands alone.
inline void playFile(const char *path, const std::function<QString()> &state, const Actions &actions = {},
                     const QWidget *window = nullptr)
{
    for (const QString &line : QString(readFile(path)).split(u'\n', Qt::SkipEmptyParts))
        play(line.contains(QStringLiteral(" -> ")) ? line : line + QStringLiteral(" -> "), state, actions, window);
}
