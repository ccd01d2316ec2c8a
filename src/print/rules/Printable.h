#pragma once

#include "print/rules/PageLayout.h"
#include "print/rules/PrintSource.h"

#include <functional>

/// What can be printed or previewed: lays itself out as often as it is asked. A value that is cheap to copy.
class Printable
{
public:
    /// Lays out for a printer's page and a zoom; the printer is not needed any more afterwards.
    using LayOut = std::function<std::unique_ptr<const PageLayout>(const PrinterMetrics &printer, double ZoomDivisor)>;

    /// folder is where a file of it belongs; empty when there is none.
    Printable(LayOut layOut, const QString &folder);
    /// A vocabulary as a list of its words.
    Printable(PrintSource vocabulary);                               // NOLINT(google-explicit-constructor)
    Printable(const std::shared_ptr<const PrintSource> &vocabulary); // NOLINT(google-explicit-constructor)

    /// ZoomDivisor is 1.0 for printing and at least 1.0 in the preview.
    std::unique_ptr<const PageLayout> layOut(const PrinterMetrics &printer, double ZoomDivisor = 1.0) const
    {
        return m_layOut(printer, ZoomDivisor);
    }
    const QString &folder() const { return m_folder; }

private:
    LayOut m_layOut;
    QString m_folder;
};
