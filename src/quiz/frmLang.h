#pragma once

#include <QDialog>

#include <array>
#include <memory>

class QCompleter;
class QLineEdit;
class frmDoc;

namespace Ui {
class frmLang;
}

/// Edits the names of the two languages of a document: the header texts of its grid. The arrow in a box, or Down,
/// offers the names of languages; what is typed is never changed unless one of them is chosen.
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
    void addArrow(QLineEdit *box);
    void offerNames(QLineEdit *box);

    std::unique_ptr<Ui::frmLang> m_ui;
    std::array<QLineEdit *, 2> m_txtLang;
    std::array<QString, 2> m_loadedNames;
    frmDoc &m_document;
    QCompleter *m_names = nullptr; ///< made when it is first asked for
};
