#include "tools/frmFont.h"

#include "ui_frmFont.h"

#include "document/ctlGrid.h"
#include "document/frmDoc.h"
#include "resources/StringTable.h"
#include "services/AlertBox.h"
#include "services/FormTexts.h"
#include "services/Hourglass.h"
#include "services/desktop/EnterKey.h"
#include "services/settings/clsAppProperties.h"

#include <QFontDatabase>
#include <QGuiApplication>

#include <cmath>

namespace {

constexpr int SmallestSize = 3;
constexpr int LargestSize = clsAppProperties::LargestFontSize;
constexpr int FirstColorTextId = 8008;
/// 0x00BBGGRR, in the order of their names' ids.
constexpr int Colors[] = {0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0x808080,
                          0xC0C0C0, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
constexpr int Sizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};

} // namespace

frmFont::frmFont(frmDoc &document, clsAppProperties &settings, AlertBox &alert, QWidget *parent)
    : ToolDialog(document, parent)
    , m_ui(std::make_unique<Ui::frmFont>())
    , m_settings(settings)
    , m_alert(alert)
{
    m_ui->setupUi(this);
    EnterKey::leaveToDialog(*this);
    FormTexts::apply(this);
    const ctlGrid &grid = *document.Rutor();
    fillColors();
    fillSizes();
    fillFonts();
    m_ui->chkBold->setChecked(grid.Font().bold());
    m_ui->chkItalic->setChecked(grid.Font().italic());
    const QString text = grid.Text();
    m_ui->picSample->setText(text.isEmpty() ? resText(12202) : text);
    m_ui->picSample->setSampleFont(grid.Font());
    showSampleColor();
    connectControls();
}

frmFont::~frmFont() = default;

void frmFont::fillColors()
{
    for (int i = 0; i < int(std::size(Colors)); ++i) {
        const int color = Colors[i];
        m_ui->cboColor->addColor(resText(FirstColorTextId + i),
                                 QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF), color);
    }
    m_ui->cboColor->setCurrentIndex(m_ui->cboColor->findData(document().Rutor()->ForeColor()));
}

void frmFont::fillSizes()
{
    for (const int size : Sizes)
        m_ui->cboSize->addItem(QString::number(size), size);
    m_ui->cboSize->setNumbersOnly(document().Rutor()->Font().pointSizeF());
}

void frmFont::fillFonts()
{
    for (const QString &family : QFontDatabase::families()) {
        if (!QFontDatabase::isPrivateFamily(family))
            m_ui->cboFont->addItem(family);
    }
    m_ui->cboFont->setAutoComplete(document().Rutor()->Font().family());
}

void frmFont::connectControls()
{
    const auto showSampleFont = [this] {
        QFont font = chosenFont();
        if (chosenSize() < 1)
            font.setPointSizeF(m_ui->picSample->sampleFont().pointSizeF());
        m_ui->picSample->setSampleFont(font);
    };
    connect(m_ui->cboFont, &QComboBox::editTextChanged, this, showSampleFont);
    connect(m_ui->chkBold, &QCheckBox::toggled, this, showSampleFont);
    connect(m_ui->chkItalic, &QCheckBox::toggled, this, showSampleFont);
    connect(m_ui->cboSize, &QComboBox::editTextChanged, this, &frmFont::onSizeChanged);
    connect(m_ui->cboSize, &QComboBox::editTextChanged, this, showSampleFont);
    connect(m_ui->cboColor, &QComboBox::currentIndexChanged, this, &frmFont::showSampleColor);
    connect(m_ui->btnOK, &QPushButton::clicked, this, &frmFont::accept);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &frmFont::reject);
}

void frmFont::showSampleColor()
{
    m_ui->picSample->setColors(chosenColor(), document().Rutor()->BackColor());
}

void frmFont::onSizeChanged(const QString &text)
{
    if (text.isEmpty()) {
        reportSize(8025);
    } else if (chosenSize() > LargestSize) {
        reportSize(8024);
        m_ui->cboSize->setEditText(QString::number(LargestSize));
    }
}

void frmFont::reportSize(int textId)
{
    m_alert.show(this, {resText(textId), resText(507), Alert::Ok, 0, true});
    m_ui->cboSize->setFocus();
}

QFont frmFont::chosenFont() const
{
    QFont font = document().Rutor()->Font();
    if (const int entry = m_ui->cboFont->matchingIndex(); entry >= 0)
        font.setFamily(m_ui->cboFont->itemText(entry));
    if (const double size = chosenSize(); size >= 1)
        font.setPointSizeF(std::min(size, double(LargestSize)));
    font.setBold(m_ui->chkBold->isChecked());
    font.setItalic(m_ui->chkItalic->isChecked());
    return font;
}

double frmFont::chosenSize() const
{
    return m_ui->cboSize->currentText().toDouble();
}

int frmFont::chosenColor() const
{
    const QVariant color = m_ui->cboColor->currentData();
    return color.isValid() ? color.toInt() : document().Rutor()->ForeColor();
}

void frmFont::accept()
{
    const int size = int(std::lround(chosenSize()));
    if (size < SmallestSize) {
        reportSize(8025);
        return;
    }
    QFont font = chosenFont();
    font.setPointSize(size);
    const int color = chosenColor();
    ctlGrid &grid = *document().Rutor();
    if (font != grid.Font()) {
        const Hourglass hourglass;
        grid.setGridFont(font);
        grid.makeRoom();
    }
    grid.setForeColor(color);
    document().setDirty(true);
    if (m_ui->chkDefault->isChecked())
        storeAsDefault(font, color);
    ToolDialog::accept();
}

void frmFont::storeAsDefault(const QFont &font, int color)
{
    m_settings.setFontName(font.family());
    m_settings.setFontSize(font.pointSize());
    m_settings.setFontBold(font.bold());
    m_settings.setFontItalic(font.italic());
    m_settings.setFontColor(color);
}
