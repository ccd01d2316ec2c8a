#pragma once

#include <QAction>
#include <QKeySequence>
#include <QObject>

#include <functional>
#include <map>
#include <vector>

/// What the main window is doing; it decides which commands can be given.
enum class AppState { StateDocument = 1, StateNoDocument = 2, StateEditing = 3, StatePreview = 4 };

/// A set of application states.
class StateSet
{
public:
    template <typename... States>
    constexpr explicit StateSet(States... states)
        : m_bits((0u | ... | bit(states)))
    {
    }
    constexpr bool contains(AppState state) const { return m_bits & bit(state); }

private:
    static constexpr unsigned bit(AppState state) { return 1u << unsigned(state); }
    unsigned m_bits;
};

/// One command of the program, declared once: menus, toolbars, shortcuts, enabled states and status help come from it.
struct Command
{
    QString key;        ///< the command's name, for example "mnuFileNew"
    int captionId;      ///< string id of the menu caption
    QString shortcut;   ///< for example "Ctrl+N", or several: "Ctrl++; Ctrl+="; may be empty
    int helpId;         ///< string id of the text shown while the entry is highlighted, 0: none
    int picture;        ///< picture number, 0: none
    StateSet enabledIn; ///< the states in which it can be given
    std::function<void()> run;
    std::function<bool()> checked = {}; ///< whether its entry has a check mark now; null: it never has one
};

/// Every command by its key, each with the action that menus and toolbars share.
class CommandTable : public QObject
{
    Q_OBJECT

public:
    explicit CommandTable(QObject *parent = nullptr);

    /// Adds a command. A key can be added once only.
    void add(const Command &command);

    /// Takes a command out again; nothing happens when there is none.
    void remove(const QString &key);

    /// Runs the command with that key exactly as a click on its menu entry does: nothing happens when there is none or
    /// when it is disabled.
    void run(const QString &key);

    /// The action of a command; null for an unknown key.
    QAction *action(const QString &key) const;
    /// The declaration of a command; null for an unknown key.
    const Command *find(const QString &key) const;
    /// The commands in the order in which they were added.
    const std::vector<const Command *> &commands() const { return m_order; }

    /// Enables the commands that can be given in a state and disables the others.
    void applyState(AppState state);
    AppState state() const { return m_state; }

    /// A further condition for a command besides its states (Undo: there is something to undo).
    void setAvailable(const QString &key, bool available);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Entry
    {
        Command command;
        QAction *action;
        bool available = true;
    };
    void onTriggered(const QString &key);
    void update(const Entry &entry) const;

    std::map<QString, Entry> m_entries;
    std::vector<const Command *> m_order;
    AppState m_state = AppState::StateNoDocument;
    bool m_inKeyPress = false; ///< a key is being handled
};
