#pragma once

#include "print/rules/PrintSurface.h"

/// The program's printer: the measures of its page, and a surface that takes one page after the other.
class PrinterDevice : public PrinterMetrics, public PrintSurface
{
public:
    /// The name under which the next print job runs.
    virtual void setDocName(const QString &name) = 0;

    /// Starts a print job, whose first page is the surface at once. These three throw PrinterError; the job is over
    /// then.
    virtual void beginDoc() = 0;
    virtual void newPage() = 0;
    virtual void endDoc() = 0;

    /// Settings of the print dialog that the printer keeps: copies page by page instead of set by set, the last page
    /// first, and whether a page (from 1) is among the pages listed there.
    virtual bool uncollated() const = 0;
    virtual bool lastPageFirst() const = 0;
    virtual bool wantsPage(int page) const = 0;
};
