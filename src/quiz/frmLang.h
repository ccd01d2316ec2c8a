#pragma once

#include <QDialog>

#include <array>
#include <memory>

class QLineEdit;
class frmDoc;

namespace Ui {
class frmLang;
}

/// Edits the names of the two languages of a document: the header texts of its grid.
class frmLang : public QDialog
{
    Q_OBJECT

public:
    /// The document must outlive the dialog.
    explicit frmLang(frmDoc &document, QWidget *parent = nullptr);
    ~frmLang() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Form_Load();
    void btnOK_Click();

    std::unique_ptr<Ui::frmLang> m_ui;
    std::array<QLineEdit *, 2> m_txtLang;
    std::array<QString, 2> m_loadedNames;
    frmDoc &m_document;
};
