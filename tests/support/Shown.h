#pragma once

/// What a user reads in one part of a window, with signs: (disabled), *bold*, [x] and [ ] checked or not, <typed>,
/// > the focus. Empty for what says nothing.
inline QString shownPart(const QWidget &part)
{
    QString text;
    if (const auto *label = qobject_cast<const QLabel *>(&part))
        text = label->text();
    else if (const auto *button = qobject_cast<const QAbstractButton *>(&part))
        text = (button->isCheckable() ? button->isChecked() ? "[x] " : "[ ] " : "") + button->text();
    else if (const auto *line = qobject_cast<const QLineEdit *>(&part))
        text = u'<' + line->displayText() + u'>';
    else if (const auto *combo = qobject_cast<const QComboBox *>(&part))
        text = u'{' + combo->currentText() + u'}';
    else if (const auto *group = qobject_cast<const QGroupBox *>(&part))
        text = group->title();
    if (part.font().bold() && !text.isEmpty())
        text = u'*' + text + u'*';
    if (!part.isEnabled() && !text.isEmpty())
        text = u'(' + text + u')';
    return part.hasFocus() && !text.isEmpty() ? u'>' + text : text;
}

/// All parts that are visible, in the order in which they were made.
inline QString shown(const QWidget &window)
{
    QStringList parts(window.windowTitle());
    for (const QWidget *part : window.findChildren<QWidget *>()) {
        if (const QString text = part->isVisible() ? shownPart(*part) : QString(); !text.isEmpty())
            parts += text;
    }
    return parts.join(QStringLiteral(" | "));
}
