#pragma once

/// One row or column as it is shown: where it begins and how large it is, in pixels of the viewport, and how large it
/// would be at the normal size.
struct FlexGridBand
{
    int index;
    int start;
    int size;
    int normalSize;

    int end() const { return start + size; }
};
