#pragma once

#include "print/rules/TestWords.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class frmTest;
}

/// Asks what kind of test is to be printed. The choice that is handed in is offered, and replaced unless the user
/// cancels.
class frmTest : public QDialog
{
    Q_OBJECT

public:
    enum Result { Cancelled = QDialog::Rejected, Print = QDialog::Accepted, Preview };

    /// vocabulary must hold a pair of words; newNumber gives the number of another sheet. Both and the choice outlive
    /// the dialog.
    frmTest(const PrintSource &vocabulary, TestChoice &choice, std::function<int()> newNumber, QWidget *owner);
    ~frmTest() override;

    void done(int result) override;

private:
    void showChoice(const PrintSource &vocabulary);
    void connectControls();
    void enableControls();
    void readChoice();

    std::unique_ptr<Ui::frmTest> m_ui;
    TestChoice &m_choice;
    std::function<int()> m_newNumber;
};
