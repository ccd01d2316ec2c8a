#include "quiz/frmSplash.h"

#include "resources/Pictures.h"
#include "resources/ResourceFiles.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"
#include "services/status/modSBFunc.h"

#include "ui_frmSplash.h"

#include <QDesktopServices>
#include <QScreen>
#include <QStyle>
#include <QSvgRenderer>
#include <QToolButton>
#include <QUrl>

namespace {

constexpr int VersionTextId = 12001;
constexpr int LinkTargetId = 2001;
constexpr int CopyrightId = 2004;
constexpr int DedicationId = 2005;
constexpr int LinkToolTipId = 2006;
constexpr int LinkPixels = 24;

// The window is a picture with colours of its own in every palette.
const QColor Ground(196, 196, 196);
const QColor BrightYellow(255, 255, 16);
const QColor PaleYellow(255, 255, 156);
const QColor VersionBlue(0, 0, 255);
const QColor ButtonGrey(240, 240, 240);

constexpr int Frame = 10;      ///< width of the grey frame
constexpr int Strip = 24;      ///< width of the patterned strip along the left edge, one tile
constexpr int CardMargin = 14; ///< white around the product picture
constexpr int CardOffset = 5;  ///< the second card shows this much below the first

QPixmap patternTile(double scale)
{
    QSvgRenderer drawing(ResourceFiles::contents(ResourceFiles::SplashPattern));
    QPixmap tile(drawing.defaultSize() * scale);
    tile.fill(BrightYellow);
    QPainter painter(&tile);
    drawing.render(&painter);
    painter.end();
    tile.setDevicePixelRatio(scale);
    return tile;
}

} // namespace

frmSplash::frmSplash(const QVersionNumber &version, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::frmSplash>())
    , m_version(version)
{
    m_ui->setupUi(this);
    if (isRightToLeft()) { // which mirrors what a layout holds, not its margins
        const QMargins margins = layout()->contentsMargins();
        layout()->setContentsMargins(margins.right(), margins.top(), margins.left(), margins.bottom());
    }
    setPalette(QPalette(ButtonGrey, PaleYellow));
    m_imgLink = {m_ui->imgLink0, m_ui->imgLink1};
    m_ui->lblCopyright->installEventFilter(this);
    connect(m_ui->btnOK, &QPushButton::clicked, this, &QDialog::accept);
    for (int i = 0; i < int(m_imgLink.size()); ++i) {
        m_imgLink[size_t(i)]->installEventFilter(this);
        connect(m_imgLink[size_t(i)], &QToolButton::clicked, this, [this, i] { imgLink_Click(i); });
    }
    setMouseTracking(true);
}

frmSplash::~frmSplash() = default;

void frmSplash::Form_Load()
{
    FormTexts::apply(this);
    QPalette blue = palette();
    blue.setColor(QPalette::WindowText, VersionBlue);
    m_ui->lblVersion->setPalette(blue);
    m_ui->lblVersion->setText(resText(VersionTextId).arg(m_version.majorVersion()).arg(m_version.minorVersion()));
    m_ui->lblCopyright->setText(resText(CopyrightId));
    if (m_loadStatus == StartUp)
        loadSplash();
    else if (m_loadStatus == About)
        loadAbout();
}

void frmSplash::loadSplash()
{
    m_ui->btnOK->hide();
    for (QToolButton *link : m_imgLink)
        link->setEnabled(false);
    m_ui->picLinks->hide();
    setWindowTitle(QString());
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
}

void frmSplash::loadAbout()
{
    m_ui->btnOK->show();
    for (int i = 0; i < int(m_imgLink.size()); ++i) {
        m_imgLink[size_t(i)]->setEnabled(true);
        m_imgLink[size_t(i)]->setToolTip(resText(LinkToolTipId + i));
        drawLink(i);
    }
    m_ui->btnOK->setFocus();
}

void frmSplash::drawLink(int index)
{
    const double scale = devicePixelRatioF();
    const QColor text = palette().color(QPalette::WindowText);
    QImage image = drawPicture(PictureWebLink + index, int(std::lround(LinkPixels * scale)), text, VersionBlue);
    image.setDevicePixelRatio(scale);
    m_imgLink[size_t(index)]->setIcon(QPixmap::fromImage(image));
}

void frmSplash::imgLink_Click(int index)
{
    QDesktopServices::openUrl(QUrl(resText(LinkTargetId + index)));
}

void frmSplash::lblCopyright_MouseDown()
{
    m_ui->lblCopyright->setText(resText(DedicationId));
}

void frmSplash::lblCopyright_MouseUp()
{
    m_ui->lblCopyright->setText(resText(CopyrightId));
}

bool frmSplash::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->lblCopyright) {
        if (event->type() == QEvent::MouseButtonPress)
            lblCopyright_MouseDown();
        else if (event->type() == QEvent::MouseButtonRelease)
            lblCopyright_MouseUp();
        return QDialog::eventFilter(watched, event);
    }
    const auto link = std::find(m_imgLink.begin(), m_imgLink.end(), watched);
    if (link != m_imgLink.end()) {
        if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn)
            Q_EMIT linkHovered(resText(LinkTargetId + int(link - m_imgLink.begin())));
        else if (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut)
            Q_EMIT statusRequested(modSBFunc::Ready);
    }
    return QDialog::eventFilter(watched, event);
}

void frmSplash::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT statusRequested(modSBFunc::Ready);
    QDialog::mouseMoveEvent(event);
}

void frmSplash::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Ground);
    const QRect inner = rect().adjusted(Frame, Frame, -Frame, -Frame);
    painter.fillRect(inner, PaleYellow);
    const auto mirrored = [this](const QRect &part) { return QStyle::visualRect(layoutDirection(), rect(), part); };
    const QRect strip(inner.topLeft(), QSize(Strip, inner.height()));
    painter.drawTiledPixmap(mirrored(strip), patternTile(devicePixelRatioF()));

    QRect card = mirrored(m_ui->imgGL->geometry()).adjusted(-CardMargin, -CardMargin, CardMargin, CardMargin);
    card.setRight(inner.right() - CardMargin - CardOffset);
    painter.setPen(Ground.darker(120));
    painter.setBrush(Qt::white);
    painter.drawRect(mirrored(card.translated(CardOffset, CardOffset)));
    painter.drawRect(mirrored(card));

    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
