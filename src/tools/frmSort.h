#pragma once

#include "tools/ToolDialog.h"

#include <memory>

namespace Ui {
class frmSort;
}

/// Asks by which language, in which direction and over which rows a vocabulary is to be sorted.
class frmSort : public ToolDialog
{
    Q_OBJECT

public:
    explicit frmSort(frmDoc &document, QWidget *parent = nullptr);
    ~frmSort() override;

    /// What the user chose, a set of SortFlag; 0 unless the dialog was closed with OK.
    int SortFlags() const;

private:
    std::unique_ptr<Ui::frmSort> m_ui;
};
