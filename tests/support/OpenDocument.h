#pragma once

#include "document/EditCommands.h"
#include "document/ctlGrid.h"
#include "document/frmDoc.h"
#include "platform/registry/RegistryTree.h"
#include "services/rules/ProgramFlags.h"
#include "services/settings/clsAppProperties.h"
#include "services/status/modSBFunc.h"

/// A document window with a vocabulary, shown in a main window, and all that the program shares with it.
struct OpenDocument
{
    using Words = std::vector<std::array<QString, 2>>;

    /// The words and an empty last row. Nothing has changed since, and there is nothing to undo.
    explicit OpenDocument(const Words &words = {})
    {
        window.resize(900, 700);
        document.setParent(&window);
        document.setUpGrid(window.size());
        setWords(words);
        window.show();
        document.showDocument();
        window.activateWindow();
        undo.clear();
        document.setDirty(false);
    }

    ~OpenDocument() { EXPECT_TRUE(grid.Redraw()) << "drawing is held back for ever"; }

    void setWords(const Words &words)
    {
        grid.setRows(1);
        grid.setRows(int(words.size()) + 2);
        for (int i = 0; i < int(words.size()); ++i) {
            for (int col = 0; col < 2; ++col)
                grid.setTextMatrix(i + 1, col + 1, words[size_t(i)][size_t(col)]);
        }
        grid.Select(1, 1, 1, 1);
    }

    /// Random words, which separators and quotes could break, and a random selection. All words, the empty last row
    /// too.
    Words setRandomWords(std::mt19937 &engine)
    {
        const QStringList texts{"", "w", "\"x", "y\"", "p q", "long word", "W", "10", "9"};
        const auto number = [&engine](qsizetype limit) { return int(engine() % unsigned(limit)); };
        Words random{size_t(number(8))};
        for (auto &row : random)
            row = {texts[number(texts.size())], texts[number(texts.size())]};
        setWords(random);
        const int rows = grid.Rows() - 1;
        select(1 + number(rows), 1 + number(2), 1 + number(rows), 1 + number(2));
        return words();
    }

    /// Every data row, the empty last one included.
    Words words() const
    {
        Words words;
        for (int row = 1; row < grid.Rows(); ++row)
            words.push_back({grid.TextMatrix(row, 1), grid.TextMatrix(row, 2)});
        return words;
    }

    void select(int row, int col, int rowSel, int colSel) { grid.Select(row, col, rowSel, colSel); }

    ProgramFlags flags;
    UndoRecord undo;
    modSBFunc status{flags};
    RegistryTree store;
    clsAppProperties settings{store, QStringLiteral("/usr/bin/glosaria")};
    QWidget window;
    frmDoc document{{flags, undo, status, settings}};
    ctlGrid &grid = *document.Rutor();
    EditCommands commands{undo, *QGuiApplication::clipboard()};
};
