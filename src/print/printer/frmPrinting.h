#pragma once

#include <QDialog>

#include <exception>
#include <functional>
#include <memory>

class PrintRun;
namespace Ui {
class frmPrinting;
}

/// The box of a run of the printer: tells the page and can cancel. It drives the run a few sheets at a time, so that
/// the program answers in between; a short run ends before the box would show.
class frmPrinting : public QDialog
{
    Q_OBJECT

public:
    /// Told what is being printed.
    using Progress = std::function<void(const QString &text)>;

    frmPrinting(PrintRun &run, Progress progress, QWidget *owner);
    ~frmPrinting() override;

    /// Prints every sheet and ends the job, unless the user cancels. Throws PrinterError.
    void print();

protected:
    void showEvent(QShowEvent *event) override;

private:
    bool printFor(int milliseconds);
    void goOn();

    std::unique_ptr<Ui::frmPrinting> m_ui;
    PrintRun &m_run;
    Progress m_progress;
    std::exception_ptr m_fault;
};
