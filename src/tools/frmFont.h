#pragma once

#include "tools/ToolDialog.h"

#include <memory>

class AlertBox;
class clsAppProperties;

namespace Ui {
class frmFont;
}

/// Lets the user choose font, size, style and colour of a vocabulary's grid, shown in a sample, and make the choice the
/// default of new documents.
class frmFont : public ToolDialog
{
    Q_OBJECT

public:
    frmFont(frmDoc &document, clsAppProperties &settings, AlertBox &alert, QWidget *parent = nullptr);
    ~frmFont() override;

    /// OK: refused with a message while the size is none that can be used.
    void accept() override;

private:
    void fillColors();
    void fillSizes();
    void fillFonts();
    void connectControls();
    void showSampleColor();
    void onSizeChanged(const QString &text);
    void reportSize(int textId);

    QFont chosenFont() const;
    /// The size in points, 0 when the box holds none.
    double chosenSize() const;
    int chosenColor() const;
    void storeAsDefault(const QFont &font, int color);

    std::unique_ptr<Ui::frmFont> m_ui;
    clsAppProperties &m_settings;
    AlertBox &m_alert;
};
