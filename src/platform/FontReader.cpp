#include "platform/FontReader.h"

#include <fontconfig/fontconfig.h>

FontReader::FontReader()
    : m_thread(&FcInit)
{
}

FontReader::~FontReader()
{
    m_thread.join();
}
