#pragma once

#include "print/dialogs/CommonDialogs.h"

#include <QPageLayout>
#include <QPrintDialog>

class QtPrinter;

/// The toolkit's print dialog over a printer, mended: it begins with the printer that was chosen last, also if that is
/// a PDF file, shows pages and copies at once, takes "4 to 2" for 2 to 4, and keeps the paper of the page setup.
class PrintDialog : public QPrintDialog
{
    Q_OBJECT

public:
    /// printer takes the user's choices and must outlive the dialog; present is the program's until then.
    PrintDialog(QPrinter &printer, const QtPrinter &present, const PrintRequest &request);

    PrintChoice choice() const;
    void accept() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void showOptions();
    void orderPages();
    void keepPaper();

    QPrinter &m_printer;
    bool m_toFile;                 ///< the PDF file was chosen last
    QPageLayout m_paper;           ///< of the page setup
    bool m_seenProperties = false; ///< the user may have chosen another paper
};
