#pragma once

#include <QFont>
#include <QPixmap>

/// The colour values and settings that a flex grid draws and behaves by. Colours are 0x00BBGGRR; values with the top
/// bit set are system colours.
struct FlexGridLook
{
    static constexpr int WindowColour = int(0x80000000U + 5);
    static constexpr int WindowTextColour = int(0x80000000U + 8);
    static constexpr int WorkspaceColour = int(0x80000000U + 12);
    static constexpr int HighlightColour = int(0x80000000U + 13);
    static constexpr int HighlightTextColour = int(0x80000000U + 14);
    static constexpr int ButtonFaceColour = int(0x80000000U + 15);
    static constexpr int ButtonShadowColour = int(0x80000000U + 16);
    static constexpr int ButtonTextColour = int(0x80000000U + 18);
    static constexpr int LightLineColour = int(0x80000000U + 22);

    enum Lines { NoLines, FlatLines, InsetLines, RaisedLines };
    enum Merging { NoMerging, FreeMerging, RestrictRows, RestrictCols, RestrictBoth };
    enum HighLightMode { HighLightNever, HighLightAlways, HighLightWithFocus };
    enum Focus { NoFocusRect, LightFocusRect, HeavyFocusRect };
    enum Selecting { FreeSelection, SelectionByRow, SelectionByCol };
    enum Resizing { ResizeNone, ResizeCols, ResizeRows, ResizeBoth };

    int Appearance = 1; ///< 0 flat, 1 with depth
    int BorderStyle = 1;
    bool AllowBigSelection = true;
    int AllowUserResizing = ResizeNone;
    int BackColor = WindowColour;
    int BackColorBkg = WorkspaceColour;
    int BackColorFixed = ButtonFaceColour;
    int BackColorSel = HighlightColour;
    int ForeColor = WindowTextColour;
    int ForeColorFixed = ButtonTextColour;
    int ForeColorSel = HighlightTextColour;
    int GridColor = LightLineColour;
    int GridColorFixed = ButtonShadowColour;
    int GridLines = FlatLines;
    int GridLinesFixed = FlatLines;
    int GridLineWidth = 1; ///< pixels
    int HighLight = HighLightAlways;
    int FocusRect = LightFocusRect;
    int FillStyle = 0; ///< 0: a cell property applies to the current cell, 1: to every selected cell
    int MergeCells = NoMerging;
    int PictureType = 0; ///< 0 colour, 1 black and white
    int SelectionMode = FreeSelection;
    int TextStyle = 0;
    int TextStyleFixed = 0;
    bool WordWrap = false;
    int ScrollBars = 3; ///< bit 1 horizontal, bit 2 vertical
    bool ScrollTrack = true;
    int MousePointer = 0;
    QPixmap MouseIcon;
    QFont Font;
};
