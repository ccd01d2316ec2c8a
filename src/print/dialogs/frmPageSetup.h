#pragma once

#include "print/printer/PrinterSetup.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmPageSetup;
}

/// The page setup: the printer, and the paper, its orientation and its sides as far as the printer knows them.
class frmPageSetup : public QDialog
{
    Q_OBJECT

public:
    /// Shows the present setup among the printers to choose from.
    frmPageSetup(std::vector<PrinterOffer> offers, const PrinterSetup &present, QWidget *owner);
    ~frmPageSetup() override;

    PrinterSetup setup() const;

private:
    void fillPrinters(const QString &present);
    void showPrinter();
    const PrinterOffer &offer() const;
    void selectPaper(const QPageSize &paper);

    std::unique_ptr<Ui::frmPageSetup> m_ui;
    std::vector<PrinterOffer> m_offers;
};
