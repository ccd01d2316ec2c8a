#pragma once

#include <QPageLayout>
#include <QPrinter>

#include <vector>

/// The printer and the paper that pages are laid out for.
struct PrinterSetup
{
    QString printer; ///< empty: a PDF file
    QPageSize paper;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    QPrinter::DuplexMode duplex = QPrinter::DuplexNone;
};

/// A printer that can be chosen, and what it can do.
struct PrinterOffer
{
    QString printer; ///< empty: a PDF file
    QList<QPageSize> papers;
    QPageSize usualPaper;
    bool twoSided = false;
};

/// Every printer of the desktop, and last the PDF file.
std::vector<PrinterOffer> offeredPrinters();
