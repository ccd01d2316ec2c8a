#pragma once

#include <QStringList>

#include <vector>

/// How the store came to look as it does: the statements that lead from each version to the next. What was released is
/// never changed; a new version adds a step.
namespace MemorySchema {

inline const std::vector<QStringList> &steps()
{
    static const std::vector<QStringList> all = {
        {
            QStringLiteral("CREATE TABLE word (id INTEGER PRIMARY KEY, asked TEXT NOT NULL, answer TEXT NOT NULL)"),
            QStringLiteral("CREATE TABLE answer (id INTEGER PRIMARY KEY AUTOINCREMENT, word INTEGER NOT NULL, "
                           "time INTEGER NOT NULL, day INTEGER NOT NULL, kind INTEGER NOT NULL, "
                           "correct INTEGER NOT NULL, hint INTEGER NOT NULL, milliseconds INTEGER NOT NULL)"),
            QStringLiteral("CREATE INDEX answer_day ON answer (day, word)"),
            QStringLiteral("CREATE TABLE card (word INTEGER PRIMARY KEY, stability REAL NOT NULL, "
                           "difficulty REAL NOT NULL, due INTEGER NOT NULL, last INTEGER NOT NULL, "
                           "asked INTEGER NOT NULL, missed INTEGER NOT NULL, answer INTEGER NOT NULL)"),
            QStringLiteral("CREATE INDEX card_answer ON card (answer)"),
        },
    };
    return all;
}

} // namespace MemorySchema
