#include "platform/FontReader.h"

#include <fontconfig/fontconfig.h>

#include <system_error>

FontReader::FontReader()
{
    try {
        m_thread = std::thread(&FcInit);
    } catch (const std::system_error &) {
        // No thread can be had: the toolkit reads the fonts when it needs them.
    }
}

FontReader::~FontReader()
{
    if (m_thread.joinable())
        m_thread.join();
}
