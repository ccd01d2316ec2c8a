#pragma once

#include "print/PaintedSurface.h"

#include <QPainter>
#include <QTemporaryDir>

#include <memory>
#include <optional>

class PrintServer;
class QPrinter;

/// One job of the printer, from the first sheet on. What is for a queue of the print server is drawn to a file, which
/// is handed over when it is complete: a job that fails or is cancelled prints nothing.
class PrintJob
{
public:
    /// Begins the job. The printer writes the sheets to its own file, unless a queue is named. Both must outlive the
    /// job. This and the other operations throw PrinterError.
    PrintJob(QPrinter &printer, const QString &queue, PrintServer &server);
    /// Throws away a job that was not ended.
    ~PrintJob();
    Q_DISABLE_COPY_MOVE(PrintJob)

    void newPage();
    void end();

    PaintedSurface &surface() { return *m_surface; }

private:
    void prepareSpool();
    void send();
    bool writesFile() const;
    [[noreturn]] void fail() const;

    QPrinter &m_printer;
    QString m_queue;
    PrintServer &m_server;
    std::optional<QTemporaryDir> m_spoolFolder;
    std::unique_ptr<QPrinter> m_spool;
    QPrinter *m_sheets; ///< what is drawn on: the printer or the spool
    QPainter m_painter;
    std::optional<PaintedSurface> m_surface;
    bool m_ended = false;
};
