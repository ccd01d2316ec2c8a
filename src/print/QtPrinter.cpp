#include "print/QtPrinter.h"

#include "platform/Twips.h"
#include "print/PaintedSurface.h"
#include "resources/StringTable.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPageRanges>
#include <QPainter>
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

void useTwips(QPrinter &printer)
{
    printer.setResolution(Twips::PerInch);
    printer.setFullPage(true);
    printer.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Point);
}

/// The options that go to the print server with a job, as names and values in turn.
constexpr auto ServerOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);

/// Takes an option away from the printer and returns its value.
QString takeServerOption(QPrinter &printer, const QString &name)
{
    QStringList options = printer.printEngine()->property(ServerOptions).toStringList();
    const qsizetype at = options.indexOf(name);
    if (at < 0 || at + 1 >= options.size())
        return {};
    const QString value = options.at(at + 1);
    options.remove(at, 2);
    printer.printEngine()->setProperty(ServerOptions, options);
    return value;
}

/// Whether a PDF file was written to its end; the platform does not tell when a disk has filled up.
bool isWholePdf(const QString &path)
{
    constexpr qint64 tailLength = 32;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QFile::ReadOnly))
        return false;
    file.seek(std::max<qint64>(0, file.size() - tailLength));
    return file.readAll().trimmed().endsWith("%%EOF");
}

} // namespace

QtPrinter::QtPrinter() = default;
QtPrinter::~QtPrinter() = default;

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

void QtPrinter::settle()
{
    if (!writesFile() && QPrinterInfo(printer()).isNull())
        throw PrinterError(resText(12401).arg(printer().printerName()));
    useTwips(printer());
    printer().setCopyCount(1);
    // The server would choose among the pages of the job, which holds the chosen pages of every copy already.
    takeServerOption(printer(), QStringLiteral("page-ranges"));
    m_pageSet = takeServerOption(printer(), QStringLiteral("page-set"));
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
    m_surface->setFont(font);
}

void QtPrinter::setForeColor(QRgb color)
{
    m_surface->setForeColor(color);
}

void QtPrinter::drawText(int x, int y, const QString &text, bool rightToLeft)
{
    m_surface->drawText(x, y, text, rightToLeft);
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
    if (m_painter) {
        if (!printer().newPage() || printer().printerState() == QPrinter::Error)
            fail();
        return;
    }
    m_painter = std::make_unique<QPainter>();
    if (!m_painter->begin(&printer()))
        fail();
    m_surface = std::make_unique<PaintedSurface>(*m_painter);
}

void QtPrinter::endDoc()
{
    if (!m_painter)
        return;
    const bool ended = m_painter->end() && printer().printerState() != QPrinter::Error;
    if (!ended || (writesFile() && !isWholePdf(printer().outputFileName())))
        fail();
    m_surface.reset();
    m_painter.reset();
}

void QtPrinter::fail()
{
    if (m_painter->isActive()) {
        printer().abort();
        m_painter->end();
    }
    m_surface.reset();
    m_painter.reset();
    throw PrinterError(writesFile() ? resText(12404).arg(printer().outputFileName()) : resText(12403));
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
