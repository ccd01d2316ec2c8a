#pragma once

#include "print/printer/PrinterSetup.h"
#include "print/rules/PrinterDevice.h"

#include <memory>

class PrintJob;
class PrintServer;

/// The platform's printer at 1440 dots per inch over the full page, so that one unit is one twip. Without a printer
/// installed its pages go to a PDF file.
class QtPrinter : public PrinterDevice
{
public:
    /// The server must outlive the object.
    explicit QtPrinter(PrintServer &server);
    ~QtPrinter() override;

    /// The platform's printer, made when first asked for.
    QPrinter &printer() const;
    /// Another printer set up in the same way, for a dialog to change; adopt then takes it over.
    std::unique_ptr<QPrinter> copy() const;
    /// Brings resolution and margins back, and leaves copies and the choice of pages to the program. Throws
    /// PrinterError when the printer does not exist; then the one before stays.
    void adopt(std::unique_ptr<QPrinter> printer);

    PrinterSetup setup() const;
    void setUp(const PrinterSetup &setup);

    /// Whether the pages go to a PDF file, not to a printer.
    bool writesFile() const;

    int Width() const override;
    int Height() const override;
    int ScaleHeight() const override;
    std::unique_ptr<TextMeasure> measure(const PrintFont &font) const override;
    bool turnsOverShortEdge() const override;

    void setFont(const PrintFont &font) override;
    void setForeColor(QRgb color) override;
    void drawText(int x, int y, const QString &text, bool rightToLeft) override;
    void drawLine(int x1, int y1, int x2, int y2) override;

    void setDocName(const QString &name) override;
    void startPage() override;
    void endDoc() override;
    void killDoc() override;

    bool lastPageFirst() const override;
    bool wantsPage(int page) const override;

    /// Makes one unit of a printer one twip, its origin the corner of the page.
    static void useTwips(QPrinter &printer);
    /// The options that go to the print server with a job, as names and values in turn.
    static QStringList serverOptions(const QPrinter &printer);

private:
    QString queue() const;

    PrintServer &m_server;
    mutable std::unique_ptr<QPrinter> m_printer;
    QString m_pageSet; ///< "odd" or "even": only those pages are wanted
    std::unique_ptr<PrintJob> m_job;
};
