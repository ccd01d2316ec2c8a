#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// The first lines of an exported text that say how the rest is written: "#separator:tab", "#html:true",
/// "#tags column:3".
struct AnkiHeader
{
    qsizetype size = 0; ///< letters of these lines with their ends
    QString separator;  ///< empty: not said
    std::optional<bool> markup;
    QStringList columnNames;
    std::vector<int> otherColumns; ///< counted from 0: tags, decks, kinds, marks of notes

    static AnkiHeader read(QStringView text);
};
