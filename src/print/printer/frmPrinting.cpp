#include "print/printer/frmPrinting.h"

#include "print/rules/PrintRun.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"

#include "ui_frmPrinting.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

namespace {

constexpr int ShowAfter = 300; // milliseconds
constexpr int Slice = 30;      // milliseconds of printing between events

} // namespace

frmPrinting::frmPrinting(PrintRun &run, Progress progress, QWidget *owner)
    : QDialog(owner)
    , m_ui(std::make_unique<Ui::frmPrinting>())
    , m_run(run)
    , m_progress(std::move(progress))
{
    m_ui->setupUi(this);
    FormTexts::apply(this);
    m_ui->barSheets->setMaximum(run.sheetCount());
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmPrinting::~frmPrinting() = default;

void frmPrinting::print()
{
    if (printFor(ShowAfter))
        return;
    QTimer slices;
    connect(&slices, &QTimer::timeout, this, &frmPrinting::goOn);
    slices.start();
    exec();
    if (m_fault)
        std::rethrow_exception(m_fault);
}

// The button can be pressed: the pointer tells that the program is at work and yet answers.
void frmPrinting::showEvent(QShowEvent *event)
{
    QApplication::changeOverrideCursor(Qt::BusyCursor);
    QDialog::showEvent(event);
}

void frmPrinting::goOn()
{
    try {
        if (printFor(Slice))
            accept();
    } catch (...) {
        m_fault = std::current_exception();
        reject();
    }
}

/// Returns whether the run has come to its end.
bool frmPrinting::printFor(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    while (!m_run.finished() && !clock.hasExpired(milliseconds)) {
        const QString text = resText(12405) + QString::number(m_run.page());
        m_progress(text);
        m_ui->lblPage->setText(text);
        m_run.printSheet();
    }
    m_ui->barSheets->setValue(m_run.sheetsDone());
    if (m_run.finished())
        m_run.end();
    return m_run.finished();
}
