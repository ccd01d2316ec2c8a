#include "app/CommandTable.h"

#include "resources/Pictures.h"
#include "resources/StringTable.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

CommandTable::CommandTable(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

void CommandTable::add(const Command &command)
{
    Q_ASSERT(!m_entries.contains(command.key));
    auto *action = new QAction(resText(command.captionId), this);
    action->setObjectName(command.key);
    action->setShortcuts(QKeySequence::listFromString(command.shortcut));
    action->setMenuRole(QAction::NoRole);
    action->setProperty("textId", command.captionId);
    action->setCheckable(bool(command.checked));
    if (command.helpId)
        action->setStatusTip(resText(command.helpId));
    if (command.picture)
        action->setIcon(picture(command.picture));
    connect(action, &QAction::triggered, this, [this, key = command.key] { onTriggered(key); });
    const auto place = m_entries.emplace(command.key, Entry{command, action}).first;
    m_order.push_back(&place->second.command);
    update(place->second);
}

/// What a key asks for is done before the next key is looked at, which may have been pressed already. Others who ask,
/// a screen reader say, must not be kept waiting by a dialog.
void CommandTable::onTriggered(const QString &key)
{
    if (m_inKeyPress)
        run(key);
    else
        QMetaObject::invokeMethod(
            this, [this, key] { run(key); }, Qt::QueuedConnection);
}

bool CommandTable::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::Shortcut;
    if (isKey && !std::exchange(m_inKeyPress, true))
        QMetaObject::invokeMethod(
            this, [this] { m_inKeyPress = false; }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void CommandTable::remove(const QString &key)
{
    const auto found = m_entries.find(key);
    if (found == m_entries.end())
        return;
    std::erase(m_order, &found->second.command);
    found->second.action->deleteLater();
    m_entries.erase(found);
}

void CommandTable::run(const QString &key)
{
    const auto found = m_entries.find(key);
    if (found != m_entries.end() && found->second.action->isEnabled())
        found->second.command.run();
}

QAction *CommandTable::action(const QString &key) const
{
    const auto found = m_entries.find(key);
    return found == m_entries.end() ? nullptr : found->second.action;
}

const Command *CommandTable::find(const QString &key) const
{
    const auto found = m_entries.find(key);
    return found == m_entries.end() ? nullptr : &found->second.command;
}

void CommandTable::update(const Entry &entry) const
{
    entry.action->setEnabled(entry.available && entry.command.enabledIn.contains(m_state));
}

void CommandTable::applyState(AppState state)
{
    m_state = state;
    for (const auto &[key, entry] : m_entries)
        update(entry);
}

void CommandTable::setAvailable(const QString &key, bool available)
{
    const auto found = m_entries.find(key);
    if (found == m_entries.end())
        return;
    found->second.available = available;
    update(found->second);
}
