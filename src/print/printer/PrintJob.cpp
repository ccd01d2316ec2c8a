#include "print/printer/PrintJob.h"

#include "platform/PrintServer.h"
#include "print/printer/QtPrinter.h"
#include "print/rules/PrinterDevice.h"
#include "resources/StringTable.h"

#include <QFile>
#include <QFileInfo>
#include <QPrinter>

namespace {

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

QByteArray sidesOf(const QPrinter &printer)
{
    const bool landscape = printer.pageLayout().orientation() == QPageLayout::Landscape;
    switch (printer.duplex()) {
    case QPrinter::DuplexNone:
        return "one-sided";
    case QPrinter::DuplexShortSide:
        return "two-sided-short-edge";
    case QPrinter::DuplexLongSide:
        return "two-sided-long-edge";
    case QPrinter::DuplexAuto:
        break;
    }
    return landscape ? "two-sided-short-edge" : "two-sided-long-edge";
}

PrintServer::Options optionsOf(const QPrinter &printer)
{
    PrintServer::Options options{{"media", printer.pageLayout().pageSize().key().toLatin1()},
                                 {"sides", sidesOf(printer)}};
    if (printer.pageLayout().orientation() == QPageLayout::Landscape)
        options.emplace_back("landscape", "true");
    const QStringList chosen = QtPrinter::serverOptions(printer);
    for (qsizetype i = 0; i + 1 < chosen.size(); i += 2)
        options.emplace_back(chosen[i].toUtf8(), chosen[i + 1].toUtf8());
    return options;
}

} // namespace

PrintJob::PrintJob(QPrinter &printer, const QString &queue, PrintServer &server)
    : m_printer(printer)
    , m_queue(queue)
    , m_server(server)
    , m_sheets(&printer)
{
    if (!queue.isEmpty())
        prepareSpool();
    if (!m_painter.begin(m_sheets))
        fail();
    m_surface.emplace(m_painter);
}

PrintJob::~PrintJob()
{
    if (m_ended)
        return;
    if (m_painter.isActive()) {
        m_sheets->abort();
        m_painter.end();
    }
    const QString file = m_sheets->outputFileName();
    if (writesFile() && QFileInfo(file).isFile())
        QFile::remove(file);
}

void PrintJob::prepareSpool()
{
    m_spoolFolder.emplace();
    m_spool = std::make_unique<QPrinter>(QPrinter::HighResolution);
    m_spool->setOutputFileName(m_spoolFolder->filePath(QStringLiteral("job.pdf")));
    m_spool->setCreator(m_printer.creator());
    m_spool->setDocName(m_printer.docName());
    m_spool->setColorMode(m_printer.colorMode());
    m_spool->setPageLayout(m_printer.pageLayout());
    QtPrinter::useTwips(*m_spool);
    m_sheets = m_spool.get();
}

bool PrintJob::writesFile() const
{
    return m_sheets->outputFormat() == QPrinter::PdfFormat;
}

void PrintJob::newPage()
{
    if (!m_sheets->newPage() || m_sheets->printerState() == QPrinter::Error)
        fail();
}

void PrintJob::end()
{
    const bool ended = m_painter.end() && m_sheets->printerState() != QPrinter::Error;
    if (!ended || (writesFile() && !isWholePdf(m_sheets->outputFileName())))
        fail();
    m_ended = true;
    if (m_spool)
        send();
}

void PrintJob::send()
{
    const QString refusal =
        m_server.send(m_queue, m_spool->outputFileName(), m_printer.docName(), optionsOf(m_printer));
    if (!refusal.isEmpty())
        throw PrinterError(resText(14093).arg(m_queue, refusal));
}

void PrintJob::fail() const
{
    throw PrinterError(writesFile() ? resText(12404).arg(m_sheets->outputFileName()) : resText(12403));
}
