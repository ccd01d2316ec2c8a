#pragma once

class frmDoc;

/// Decides whether the window of a document closes.
class DocumentCloser
{
public:
    virtual ~DocumentCloser() = default;

    /// Takes leave of a document whose window is about to close. False when the window has to stay.
    virtual bool close(frmDoc &document) = 0;
};
