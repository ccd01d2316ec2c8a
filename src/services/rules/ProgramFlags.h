#pragma once

/// Flags that the whole program shares. The main program owns the one copy and hands it down.
struct ProgramFlags
{
    /// Set while the find/replace dialog is open in its find or its replace layout.
    bool FindMode = false;
    bool ReplaceMode = false;

    bool searching() const { return FindMode || ReplaceMode; }
};
