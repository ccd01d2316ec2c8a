#include "services/help/HelpViewer.h"

#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "resources/TextLanguage.h"
#include "services/FormTexts.h"
#include "services/desktop/ScreenFit.h"
#include "services/help/HelpBrowser.h"
#include "services/help/HelpFile.h"

#include "ui_HelpViewer.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

namespace {

const QString HomePage = QStringLiteral("html/welcome.html");
const QString ViewerPage = QStringLiteral("html/usinghelp.html");

constexpr QSize FullSize(970, 660); ///< wide enough for the widest picture on a page
constexpr QSize SmallSize(560, 460);
constexpr int NavigationWidth = 270;
constexpr int WindowTitle = 13003;
constexpr int TopicTitle = 13004;
constexpr int NotOnPage = 13028;

} // namespace

HelpViewer::HelpViewer(const HelpFile &file, HelpFavorites &favorites, Kind kind)
    : m_ui(std::make_unique<Ui::HelpViewer>())
{
    m_ui->setupUi(this);
    FormTexts::apply(this);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setWindowTitle(resText(WindowTitle));
    resize((kind == Kind::Full ? FullSize : SmallSize).boundedTo(ScreenFit::room(*this).size()));
    m_ui->browser->setHelpFile(file);
    m_ui->navigation->fill(file, favorites);
    m_ui->splitter->setStretchFactor(1, 1);
    m_ui->splitter->setSizes({NavigationWidth, FullSize.width() - NavigationWidth});
    m_ui->findBar->hide();
    m_ui->browser->setFocus();
    addTools();
    m_navigationTool->setChecked(kind == Kind::Full);
    m_ui->navigation->setVisible(kind == Kind::Full);

    connect(m_ui->navigation, &HelpNavigation::pageChosen, this, [this](const QString &page, const QStringList &words) {
        showPage(page);
        m_ui->browser->markWords(words);
    });
    connect(m_ui->browser, &QTextBrowser::sourceChanged, this,
            [this](const QUrl &source) { onPageShown(m_ui->browser->pageOf(source)); });
    connect(m_ui->findText, &QLineEdit::textEdited, m_ui->findOutcome, &QLabel::clear);
    connect(m_ui->findText, &QLineEdit::returnPressed, this, [this] { find(false); });
    connect(m_ui->findNext, &QPushButton::clicked, this, [this] { find(false); });
    connect(m_ui->findPrevious, &QPushButton::clicked, this, [this] { find(true); });
    QApplication::instance()->installEventFilter(this);
}

HelpViewer::~HelpViewer() = default;

QAction *HelpViewer::addTool(int textId, int pictureNumber, const QList<QKeySequence> &shortcuts,
                             const std::function<void()> &run)
{
    QAction *tool = m_ui->toolBar->addAction(picture(pictureNumber), resText(textId));
    tool->setShortcuts(shortcuts);
    if (!shortcuts.isEmpty()) {
        const QString key = shortcuts[0].toString(QKeySequence::NativeText);
        tool->setToolTip(tool->text() + QStringLiteral(" (%1)").arg(TextLanguage::isolated(key)));
    }
    connect(tool, &QAction::triggered, this, run);
    return tool;
}

void HelpViewer::addTools()
{
    HelpBrowser *browser = m_ui->browser;
    m_navigationTool = addTool(13016, PictureNavigation, {QKeySequence(Qt::Key_F9)},
                               [this] { m_ui->navigation->setVisible(m_navigationTool->isChecked()); });
    m_navigationTool->setCheckable(true);
    m_ui->toolBar->addSeparator();
    QAction *back = addTool(13009, PicturePrevious, QKeySequence::keyBindings(QKeySequence::Back),
                            [browser] { browser->backward(); });
    QAction *forward = addTool(13010, PictureNext, QKeySequence::keyBindings(QKeySequence::Forward),
                               [browser] { browser->forward(); });
    addTool(13011, PictureHome, {QKeySequence(Qt::ALT | Qt::Key_Home)}, [this] { showPage(HomePage); });
    m_ui->toolBar->addSeparator();
    addTool(13012, PictureFind, QKeySequence::keyBindings(QKeySequence::Find), [this] { openFindBar(); });
    addTool(13013, PictureZoomIn, QKeySequence::keyBindings(QKeySequence::ZoomIn), [browser] { browser->zoomBy(1); });
    addTool(13014, PictureZoomOut, QKeySequence::keyBindings(QKeySequence::ZoomOut),
            [browser] { browser->zoomBy(-1); });
    addTool(13015, PictureZoomNormal, {QKeySequence(Qt::CTRL | Qt::Key_0)}, [browser] { browser->resetZoom(); });
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    auto *close = new QAction(this);
    close->setShortcuts(QKeySequence::keyBindings(QKeySequence::Close));
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
}

QString HelpViewer::page() const
{
    return m_ui->browser->page();
}

void HelpViewer::showPage(const QString &page)
{
    m_ui->browser->showPage(page);
}

void HelpViewer::showPane(HelpNavigation::Pane pane)
{
    if (page().isEmpty())
        showPage(HomePage);
    m_navigationTool->setChecked(true);
    m_ui->navigation->show();
    m_ui->navigation->showPane(pane);
}

/// The browser tells its new source before it has it.
void HelpViewer::onPageShown(const QString &page)
{
    const QString title = m_ui->browser->documentTitle();
    setWindowTitle(title.isEmpty() ? resText(WindowTitle) : resText(TopicTitle).arg(title));
    m_ui->navigation->setCurrentPage(page);
    m_ui->findOutcome->clear();
}

void HelpViewer::openFindBar()
{
    m_ui->findBar->show();
    m_ui->findText->setFocus(Qt::ShortcutFocusReason);
    m_ui->findText->selectAll();
}

void HelpViewer::find(bool backward)
{
    const bool found = m_ui->browser->findText(m_ui->findText->text(), backward);
    m_ui->findOutcome->setText(found ? QString() : resText(NotOnPage));
}

void HelpViewer::bringToFront()
{
    create();
    stayUsable(QApplication::activeModalWidget());
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

/// A modal dialog blocks every window except those that belong to it: while one is open, the viewer belongs to it.
void HelpViewer::stayUsable(QWidget *modal)
{
    if (windowHandle())
        windowHandle()->setTransientParent(modal ? modal->windowHandle() : nullptr);
}

bool HelpViewer::eventFilter(QObject *watched, QEvent *event)
{
    const bool shows = event->type() == QEvent::Show;
    if (!shows && event->type() != QEvent::Hide)
        return false;
    auto *window = qobject_cast<QWidget *>(watched);
    if (isVisible() && window && window->isWindow() && window->isModal())
        stayUsable(shows ? window : QApplication::activeModalWidget());
    return false;
}

void HelpViewer::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::HelpContents))
        showPage(ViewerPage);
    else if (event->key() != Qt::Key_Escape)
        QMainWindow::keyPressEvent(event);
    else if (m_ui->findBar->isVisible())
        m_ui->findBar->hide();
    else
        close();
}
