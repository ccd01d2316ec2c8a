#pragma once

/// One row or column as it is shown: where it begins and how large it is, in pixels of the viewport.
struct FlexGridBand
{
    int index;
    int start;
    int size;

    int end() const { return start + size; }
};
