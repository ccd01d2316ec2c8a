#pragma once

/// Plays "step -> state, step -> state": a step is one of the actions, a key or letters for what has the focus; state
/// tells what came of it.
inline void play(const std::map<QString, std::function<void()>> &actions, const QString &steps,
                 const std::function<QString()> &state)
{
    for (const QString &line : steps.split(QStringLiteral(", "))) {
        const QString step = line.section(QStringLiteral(" -> "), 0, 0);
        if (const auto action = actions.find(step); action != actions.end())
            action->second();
        else if (QKeySequence(step).toString() == step)
            QTest::keySequence(QApplication::focusWidget(), QKeySequence(step));
        else
            QTest::keyClicks(QApplication::focusWidget(), step);
        EXPECT_EQ((step + " -> " + state()).toStdString(), line.toStdString());
    }
}
