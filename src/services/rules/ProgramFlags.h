#pragma once

/// Flags that the whole program shares. The main program owns the one copy and hands it down.
struct ProgramFlags
{
    /// True while the active grid is browsing, false while one of its cells is being edited.
    bool gridMode = true;
    /// Set while the find/replace dialog is open in its find or its replace layout.
    bool FindMode = false;
    bool ReplaceMode = false;

    bool searching() const { return FindMode || ReplaceMode; }
};
