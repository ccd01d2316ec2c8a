#include "print/printer/QtPrinter.h"

#include "platform/PrintServer.h"
#include "platform/Twips.h"
#include "print/PaintedSurface.h"
#include "print/printer/PrintJob.h"
#include "resources/StringTable.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPageRanges>
#include <QPrintEngine>
#include <QPrinterInfo>

#include <cmath>

namespace {

class PrinterTextMeasure : public TextMeasure
{
public:
    PrinterTextMeasure(const QFont &font, QPrinter &printer)
        : m_metrics(font, &printer)
    {
    }
    int TextWidth(const QString &text) const override
    {
        return int(std::lround(m_metrics.horizontalAdvance(PaintedSurface::shownText(text))));
    }
    int TextHeight() const override { return int(std::lround(m_metrics.height())); }

private:
    QFontMetricsF m_metrics;
};

constexpr auto ServerOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);

/// Takes an option away from the printer and returns its value.
QString takeServerOption(QPrinter &printer, const QString &name)
{
    QStringList options = QtPrinter::serverOptions(printer);
    const qsizetype at = options.indexOf(name);
    if (at < 0 || at + 1 >= options.size())
        return {};
    QString value = options.takeAt(at + 1);
    options.removeAt(at);
    printer.printEngine()->setProperty(ServerOptions, options);
    return value;
}

} // namespace

QtPrinter::QtPrinter(PrintServer &server)
    : m_server(server)
{
}

QtPrinter::~QtPrinter() = default;

void QtPrinter::useTwips(QPrinter &printer)
{
    printer.setResolution(Twips::PerInch);
    printer.setFullPage(true);
    printer.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Point);
}

QStringList QtPrinter::serverOptions(const QPrinter &printer)
{
    return printer.printEngine()->property(ServerOptions).toStringList();
}

QPrinter &QtPrinter::printer() const
{
    if (!m_printer) {
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        m_printer->setCreator(QCoreApplication::applicationName());
        useTwips(*m_printer);
    }
    return *m_printer;
}

bool QtPrinter::writesFile() const
{
    return printer().outputFormat() == QPrinter::PdfFormat;
}

/// The queue that jobs are sent to; empty where the printer itself takes what is drawn. An instance of a queue, which
/// the name tells after a slash, is known by its options.
QString QtPrinter::queue() const
{
    return writesFile() || !m_server.isThere() ? QString() : printer().printerName().section(u'/', 0, 0);
}

std::unique_ptr<QPrinter> QtPrinter::copy() const
{
    auto copy = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (writesFile()) {
        copy->setOutputFormat(QPrinter::PdfFormat);
        copy->setOutputFileName(printer().outputFileName());
    } else {
        copy->setPrinterName(printer().printerName());
    }
    copy->setDocName(printer().docName());
    copy->setCreator(printer().creator());
    copy->setColorMode(printer().colorMode());
    copy->setDuplex(printer().duplex());
    copy->setPageLayout(printer().pageLayout());
    copy->printEngine()->setProperty(ServerOptions, serverOptions(printer()));
    useTwips(*copy);
    return copy;
}

void QtPrinter::adopt(std::unique_ptr<QPrinter> printer)
{
    if (printer->outputFormat() != QPrinter::PdfFormat && QPrinterInfo(*printer).isNull())
        throw PrinterError(resText(12401).arg(printer->printerName()));
    m_printer = std::move(printer);
    useTwips(*m_printer);
    m_printer->setCopyCount(1);
    // The server would choose among the pages of the job, which holds the chosen pages of every copy already.
    takeServerOption(*m_printer, QStringLiteral("page-ranges"));
    m_pageSet = takeServerOption(*m_printer, QStringLiteral("page-set"));
}

PrinterSetup QtPrinter::setup() const
{
    const QPageLayout layout = printer().pageLayout();
    return {writesFile() ? QString() : printer().printerName(), layout.pageSize(), layout.orientation(),
            printer().duplex()};
}

void QtPrinter::setUp(const PrinterSetup &setup)
{
    std::unique_ptr<QPrinter> printer = copy();
    if (setup.printer.isEmpty())
        printer->setOutputFormat(QPrinter::PdfFormat);
    else if (setup.printer != printer->printerName())
        printer->setPrinterName(setup.printer);
    printer->setPageSize(setup.paper);
    printer->setPageOrientation(setup.orientation);
    printer->setDuplex(setup.duplex);
    adopt(std::move(printer));
}

int QtPrinter::Width() const
{
    return printer().width();
}

int QtPrinter::Height() const
{
    return printer().height();
}

int QtPrinter::ScaleHeight() const
{
    return printer().height();
}

std::unique_ptr<TextMeasure> QtPrinter::measure(const PrintFont &font) const
{
    return std::make_unique<PrinterTextMeasure>(PaintedSurface::fontInTwips(font), printer());
}

void QtPrinter::setFont(const PrintFont &font)
{
    m_job->surface().setFont(font);
}

void QtPrinter::setForeColor(QRgb color)
{
    m_job->surface().setForeColor(color);
}

bool QtPrinter::turnsOverShortEdge() const
{
    return printer().duplex() == QPrinter::DuplexShortSide;
}

void QtPrinter::drawLine(int x1, int y1, int x2, int y2)
{
    m_job->surface().drawLine(x1, y1, x2, y2);
}

void QtPrinter::drawText(int x, int y, const QString &text, bool rightToLeft)
{
    m_job->surface().drawText(x, y, text, rightToLeft);
}

void QtPrinter::setDocName(const QString &name)
{
    QPrinter &device = printer();
    if (device.docName() == name)
        return;
    device.setDocName(name);
    // The last document's file is not proposed for this one.
    if (!device.outputFileName().isEmpty())
        device.setOutputFileName(QFileInfo(device.outputFileName()).path() + u'/' + name + QStringLiteral(".pdf"));
}

void QtPrinter::startPage()
{
    if (m_job)
        m_job->newPage();
    else
        m_job = std::make_unique<PrintJob>(printer(), queue(), m_server);
}

void QtPrinter::endDoc()
{
    if (const std::unique_ptr<PrintJob> job = std::move(m_job))
        job->end();
}

void QtPrinter::killDoc()
{
    m_job.reset();
}

bool QtPrinter::lastPageFirst() const
{
    return printer().pageOrder() == QPrinter::LastPageFirst;
}

bool QtPrinter::wantsPage(int page) const
{
    const bool odd = page % 2 != 0;
    if (m_pageSet == (odd ? QStringLiteral("even") : QStringLiteral("odd")))
        return false;
    const QPageRanges ranges = printer().pageRanges();
    return printer().printRange() != QPrinter::PageRange || ranges.isEmpty() || ranges.contains(page);
}
