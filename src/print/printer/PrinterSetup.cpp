#include "print/printer/PrinterSetup.h"

#include <QPrinterInfo>

namespace {

PrinterOffer offerOf(const QString &name)
{
    const QPrinterInfo info = QPrinterInfo::printerInfo(name);
    const QList<QPrinter::DuplexMode> modes = info.supportedDuplexModes();
    return {name, info.supportedPageSizes(), info.defaultPageSize(), modes.contains(QPrinter::DuplexLongSide)};
}

PrinterOffer pdfFile()
{
    PrinterOffer offer;
    offer.usualPaper =
        QPageSize(QLocale().measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter : QPageSize::A4);
    for (int id = 0; id <= QPageSize::LastPageSize; ++id) {
        if (id != QPageSize::Custom)
            offer.papers.append(QPageSize(QPageSize::PageSizeId(id)));
    }
    return offer;
}

} // namespace

std::vector<PrinterOffer> offeredPrinters()
{
    std::vector<PrinterOffer> offers;
    for (const QString &name : QPrinterInfo::availablePrinterNames())
        offers.push_back(offerOf(name));
    offers.push_back(pdfFile());
    return offers;
}
