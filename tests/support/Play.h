#pragma once

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
