#pragma once

#include "resources/StringTable.h"
#include "resources/TextLanguage.h"
#include "support/Files.h"

#include <QKeySequence>

/// Expects that in every language these texts, of a menu or a window, have different mnemonics.
inline void expectDifferentLetters(const QList<int> &textIds, const QString &where)
{
    for (const QString &language : TextLanguage::available()) {
        static QHash<QString, QHash<int, QString>> tables;
        QHash<int, QString> &texts = tables[language];
        if (texts.isEmpty())
            texts = parseStringTable(readFile(SOURCE_FOLDER "/src/resources/strings." + language + ".txt"));
        QStringList letters;
        for (const int id : textIds)
            letters += QKeySequence::mnemonic(texts.value(id)).toString();
        letters.removeAll("");
        EXPECT_EQ(letters.removeDuplicates(), 0) << language.toStdString() << ": " << where.toStdString();
    }
}
