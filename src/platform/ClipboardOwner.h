#pragma once

#include <memory>

/// The program that the clipboard's text belongs to and comes from. Owns a connection to the display, made when there
/// is somebody to ask.
class ClipboardOwner
{
public:
    ClipboardOwner();
    virtual ~ClipboardOwner();

    /// False when there is one that hangs: it is given a second. The toolkit would wait for it several times as long,
    /// with the window standing still.
    virtual bool answers();

private:
    class Asker;
    bool ownerOnX11Answers();

    std::unique_ptr<Asker> m_asker;
};
