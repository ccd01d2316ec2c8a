#pragma once

#include "print/rules/PrintSurface.h"

#include <stdexcept>

/// The printer, or the dialog that chooses it, failed.
class PrinterError : public std::runtime_error
{
public:
    explicit PrinterError(const QString &text)
        : std::runtime_error(text.toStdString())
    {
    }
    /// What happened, for the user.
    QString text() const { return QString::fromUtf8(what()); }
};

/// The program's printer: the measures of its page, and a surface that takes one page after the other.
class PrinterDevice : public PrinterMetrics, public PrintSurface
{
public:
    /// The name under which the next print job runs.
    virtual void setDocName(const QString &name) = 0;

    /// Begins the next page, and with the first one the print job. Throws PrinterError; then the job is over.
    virtual void startPage() = 0;
    /// Ends the print job, if one has begun. Throws PrinterError when not all of it came out.
    virtual void endDoc() = 0;
    /// Throws the print job away, if one has begun.
    virtual void killDoc() = 0;

    /// Choices of the print dialog that the printer keeps: the last page comes first; a page (from 1) is among those
    /// listed one by one.
    virtual bool lastPageFirst() const = 0;
    virtual bool wantsPage(int page) const = 0;
};
