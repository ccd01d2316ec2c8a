#pragma once

#include <QObject>
#include <QString>

#include <optional>

class modSBFunc;

/// Shows in panel 0 of the status bar what the highlighted menu entry, or the title or button under the pointer, is
/// for, and "Ready" when the highlight leaves. The texts are the status tips of the actions; the toolkit tells of each
/// change by one event, an empty one when nothing is highlighted any more.
class modSBMenuHelp : public QObject
{
    Q_OBJECT

public:
    explicit modSBMenuHelp(modSBFunc &status, QObject *parent = nullptr);

    /// Listens to the tips that come to a window: those of its menu bar and toolbars and of what drops down from them;
    /// or to those of a menu that opens by itself.
    void watch(QWidget *source);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void onTip(const QString &tip);
    void show(const QString &text);
    void leave();

    modSBFunc &m_status;
    std::optional<QString> m_shown; ///< the help text that shows
    QString m_before;               ///< what it has taken the place of
};
