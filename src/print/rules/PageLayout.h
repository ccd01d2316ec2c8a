#pragma once

#include "print/rules/PrintSurface.h"

/// Something laid out in pages for a printer's page and a zoom; it never changes. Any page can be drawn by itself.
class PageLayout
{
public:
    virtual ~PageLayout() = default;

    /// Names the print job.
    virtual const QString &PageTitle() const = 0;
    virtual int pageCount() const = 0;

    /// The size of a drawn page in twips.
    virtual int pageWidth() const = 0;
    virtual int pageHeight() const = 0;

    /// Draws a page (from 0).
    virtual void drawPage(int page, PrintSurface &PrintDevice) const = 0;
};
