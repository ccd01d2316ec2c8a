#pragma once

#include "exchange/rules/ListReader.h"
#include "exchange/rules/ListWriter.h"

class AlertBox;
class DocumentList;
class EditCommands;
class FileCommands;
class FilePrompts;
class QClipboard;
class QWidget;
class modSBFunc;

/// The commands that bring lists in from other programs and take them there: Import, Paste List, Export.
class ListCommands
{
public:
    /// All outlive the object.
    struct Needs
    {
        DocumentList &documents;
        FileCommands &files;
        EditCommands &edit;
        FilePrompts &prompts;
        AlertBox &alert;
        modSBFunc &status;
        QClipboard &clipboard;
    };

    /// codePage: of texts that do not say theirs.
    ListCommands(const Needs &needs, const QByteArray &codePage);

    void importFile(QWidget *owner);
    void pasteList(QWidget *owner);
    void exportActive();

private:
    void import(const ListReader::Result &opened, const QString &name, QWidget *owner);
    void warn(const QString &text);

    Needs m_needs;
    ListReader::Surroundings m_surroundings;
};
