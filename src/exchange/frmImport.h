#pragma once

#include "exchange/rules/ListReader.h"
#include "exchange/rules/Pairs.h"

#include <QDialog>

namespace Ui {
class frmImport;
}

/// Shows a list as it would arrive in a vocabulary and lets the user change how it is read: what stands between the
/// words, the character set, the sheet or deck, the two columns. It tells what will not arrive.
class frmImport : public QDialog
{
    Q_OBJECT

public:
    /// source outlives the dialog. name: of the file, or what stands for it. intoActive: there is a vocabulary into
    /// which the list could go.
    frmImport(const ListSource &source, const QString &name, bool intoActive, QWidget *owner);
    ~frmImport() override;

    /// All words that arrive, below the names of the languages. To be called once, when the dialog has been closed.
    Vocabulary takeWords();
    bool intoNew() const;

private:
    void offerChoices();
    void offerSeparators();
    void offerEncodings();
    void offerColumns();
    ReadChoices readChoices() const;
    PairChoice pairChoice() const;
    void setPairChoice(const PairChoice &choice);
    void read();
    void fail(ReadError error);
    void showPairs();
    void showNames();
    void swapColumns();
    QString typedSeparator() const;

    const ListSource &m_source;
    QString m_name;
    std::unique_ptr<Ui::frmImport> m_ui;
    ReadChoices m_choices;
    TextTable m_table;
    bool m_showing = false; ///< the controls change because of what was read
};
