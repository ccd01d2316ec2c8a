#pragma once

#include "tools/ToolDialog.h"

#include <memory>

namespace Ui {
class frmColRow;
}

/// Asks for a size in pixels and gives it to every selected row or column of a vocabulary.
class frmColRow : public ToolDialog
{
    Q_OBJECT

public:
    enum Mode { ColumnWidth = 0, RowHeight = 1 };

    frmColRow(frmDoc &document, Mode mode, QWidget *parent = nullptr);
    ~frmColRow() override;

    /// OK: an empty box changes nothing.
    void accept() override;

private:
    int currentSize() const;
    void applyWidth(int pixels);
    void applyHeight(int pixels);

    std::unique_ptr<Ui::frmColRow> m_ui;
    Mode m_mode;
};
