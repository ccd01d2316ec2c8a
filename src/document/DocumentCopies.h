#pragma once

class frmDoc;

/// Keeps copies of documents beside their files.
class DocumentCopies
{
public:
    virtual ~DocumentCopies() = default;

    /// Has the words of a document in a copy on the disk. False when they are in none.
    virtual bool secure(frmDoc &document) = 0;
};
