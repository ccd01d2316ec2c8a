#pragma once

#include <thread>

/// Reads the desktop's font configuration in the background while it lives, which takes longer than connecting to the
/// display. To be ended before the first window is made, so that the toolkit finds everything read.
class FontReader
{
public:
    FontReader();
    /// Waits until all is read.
    ~FontReader();
    FontReader(const FontReader &) = delete;
    FontReader &operator=(const FontReader &) = delete;

private:
    std::thread m_thread;
};
