#pragma once

#include "document/FilePrompts.h"

#include <QStringList>

/// Answers the file dialogs in the user's place: with the prepared path, or by cancelling when there is none.
struct ScriptedPrompts : FilePrompts
{
    QString openPath;
    QString savePath;
    QStringList proposed; ///< the names that save dialogs offered

    QString askOpen() override { return openPath; }
    QString askSave(const QString &name) override
    {
        proposed.append(name);
        return savePath;
    }
};
