#pragma once

#include <QToolButton>

/// A small question mark for dialogs: it begins What's This mode where the title bar has no button for that, and is not
/// there where it has one. The keyboard has Shift+F1 for it.
class HelpButton : public QToolButton
{
    Q_OBJECT

public:
    explicit HelpButton(QWidget *parent = nullptr);
};
