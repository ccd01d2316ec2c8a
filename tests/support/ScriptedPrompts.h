#pragma once

#include "document/FilePrompts.h"

/// Answers the file dialogs in the user's place: with the prepared path, or by cancelling when there is none.
struct ScriptedPrompts : FilePrompts
{
    QString openPath;
    QString savePath;
    QStringList proposed; ///< the names that save dialogs offered
    QString folder;       ///< where the last dialog began

    QString askOpen(const QString &place) override
    {
        folder = place;
        return openPath;
    }
    QString askSave(const QString &name, const QString &place) override
    {
        folder = place;
        proposed.append(name);
        return savePath;
    }
    QString askImport(const QString &place) override { return askOpen(place); }
    QString askExport(const QString &name, const QString &place) override { return askSave(name, place); }
};
