#include "app/CommandTable.h"

#include "resources/Pictures.h"
#include "resources/StringTable.h"

CommandTable::CommandTable(QObject *parent)
    : QObject(parent)
{
}

void CommandTable::add(const Command &command)
{
    Q_ASSERT(!m_entries.contains(command.key));
    auto *action = new QAction(resText(command.captionId), this);
    action->setObjectName(command.key);
    action->setShortcut(QKeySequence(command.shortcut));
    action->setMenuRole(QAction::NoRole);
    if (command.picture)
        action->setIcon(picture(command.picture));
    // Queued: what opens a dialog must not keep the one that asked for it waiting.
    connect(
        action, &QAction::triggered, this, [this, key = command.key] { run(key); }, Qt::QueuedConnection);
    const auto place = m_entries.emplace(command.key, Entry{command, action}).first;
    m_order.push_back(&place->second.command);
    update(place->second);
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
    entry.action->setEnabled(entry.command.run && entry.available && entry.command.enabledIn.contains(m_state));
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
