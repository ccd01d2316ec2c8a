#pragma once

#include "progress/ProgressModel.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <optional>

class AlertBox;
class StoredMemory;
class ctlGrid;
class frmDoc;

namespace Ui {
class frmProgress;
}

/// Shows what the memory knows of a vocabulary's words: a table, and how many words stand how, as pictures or as
/// numbers. From here the user takes the table along as a file, goes to a word, and has answers forgotten.
class frmProgress : public QDialog
{
    Q_OBJECT

public:
    struct Needs
    {
        StoredMemory &memory;
        AlertBox &alert;
        /// Asks for the name of the file to export to, given a proposed one; empty: the user does not want to.
        std::function<QString(QWidget *owner, const QString &proposed)> askFile;
    };

    /// The words are asked in the direction of the quiz mode at first. The document must outlive the dialog.
    frmProgress(const frmDoc &document, int quizMode, const Needs &needs, QWidget *parent = nullptr);
    ~frmProgress() override;

    /// The row of the vocabulary that the user went to, once the dialog is closed.
    std::optional<int> chosenRow() const { return m_chosenRow; }

private:
    enum Forgotten { Selected, All, Everything };

    void dressTable();
    void connectControls();
    void fillDirections(int quizMode);
    void fillForgetMenu();
    void refresh();
    void showCharts();
    void enableButtons();
    std::vector<WordKey> keys() const;
    std::vector<WordKey> selectedKeys() const;
    void goToWord();
    void exportTable();
    void forget(Forgotten what);

    std::unique_ptr<Ui::frmProgress> m_ui;
    const frmDoc &m_document;
    Needs m_needs;
    ProgressModel m_model;
    std::optional<int> m_chosenRow;
};
