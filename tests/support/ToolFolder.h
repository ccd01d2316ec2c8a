#pragma once

#include <QTemporaryDir>

/// Takes the place of the search path for programs: only the tools put into it can be found. Each one notes how it was
/// called.
class ToolFolder
{
public:
    ToolFolder();
    ~ToolFolder();
    Q_DISABLE_COPY_MOVE(ToolFolder)

    void addTool(const QString &name);
    /// The calls so far, one line each: the tool's name and its arguments. Waits until there are so many.
    QStringList calls(int count) const;

private:
    QTemporaryDir m_folder;
    QByteArray m_before;
};
