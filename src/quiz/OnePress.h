#pragma once

#include <QObject>
#include <QSet>

class QWidget;

/// Lets a key that is held down and a double click count as one press, so that they do not answer the next question
/// too. Letters that are typed into a box repeat as ever.
class OnePress : public QObject
{
    Q_OBJECT

public:
    /// Watches the keys of a window, and double clicks on the given controls of it. To be made after the other filters
    /// of its controls, since it goes first.
    OnePress(QWidget &window, const QSet<const QObject *> &clicked);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QSet<const QObject *> m_clicked;
};
