#pragma once

class CommandTable;
struct AppContext;

/// Where the program's commands are declared: a file a menu, but Mode with the quizzes and what prints with the
/// preview. Each routine adds its rows to the table.
namespace AppCommands {

void addFileCommands(CommandTable &table, const AppContext &context);
void addEditCommands(CommandTable &table, const AppContext &context);
void addVocabularyCommands(CommandTable &table, const AppContext &context);
void addQuizCommands(CommandTable &table, const AppContext &context);
void addPreviewCommands(CommandTable &table, const AppContext &context);
void addWindowCommands(CommandTable &table, const AppContext &context);
void addHelpCommands(CommandTable &table, const AppContext &context);

inline void addAll(CommandTable &table, const AppContext &context)
{
    addFileCommands(table, context);
    addEditCommands(table, context);
    addVocabularyCommands(table, context);
    addQuizCommands(table, context);
    addPreviewCommands(table, context);
    addWindowCommands(table, context);
    addHelpCommands(table, context);
}

} // namespace AppCommands
