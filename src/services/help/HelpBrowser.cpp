#include "services/help/HelpBrowser.h"

#include "services/help/HelpFile.h"
#include "services/help/rules/HelpSearch.h"

#include <QDesktopServices>
#include <QRegularExpression>
#include <QStyle>
#include <QTextBlock>
#include <QWheelEvent>

namespace {

constexpr int SmallestZoom = -4;
constexpr int LargestZoom = 12;
constexpr int PageMargin = 16; // pixels

const QString Scheme = QStringLiteral("help");

QUrl urlOf(const QString &file)
{
    return QUrl(Scheme + QStringLiteral(":/") + file);
}

QString fileOf(const QUrl &url)
{
    return url.path().mid(1);
}

} // namespace

HelpBrowser::HelpBrowser(QWidget *parent)
    : QTextBrowser(parent)
{
    // The toolkit would take every address with a scheme for one outside.
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
    connect(this, &QTextBrowser::sourceChanged, this, &HelpBrowser::setDirection);
    document()->setDocumentMargin(PageMargin);
}

void HelpBrowser::showPage(const QString &page)
{
    setSource(urlOf(page), QTextDocument::HtmlResource);
}

void HelpBrowser::follow(const QUrl &link)
{
    if (link.scheme() == Scheme)
        setSource(link, QTextDocument::HtmlResource);
    else
        QDesktopServices::openUrl(link);
}

QString HelpBrowser::page() const
{
    return pageOf(source());
}

QString HelpBrowser::pageOf(const QUrl &source) const
{
    return m_file->pageOf(fileOf(source));
}

void HelpBrowser::doSetSource(const QUrl &name, QTextDocument::ResourceType type)
{
    QUrl source = urlOf(m_file->shownFor(fileOf(name)));
    source.setFragment(name.fragment());
    m_pictures.clear();
    QTextBrowser::doSetSource(source, type);
}

/// An English page is written from left to right in a window of any direction.
void HelpBrowser::setDirection(const QUrl &source)
{
    const bool translated = pageOf(source) != fileOf(source);
    QTextOption lines = document()->defaultTextOption();
    lines.setTextDirection(translated ? QLocale(m_file->language()).textDirection() : Qt::LeftToRight);
    document()->setDefaultTextOption(lines);
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    const QByteArray bytes = m_file->contents(fileOf(source().resolved(name)));
    if (type != QTextDocument::ImageResource)
        return QString::fromUtf8(bytes);
    m_pictures[name] = QImage::fromData(bytes);
    return fitted(m_pictures[name]);
}

QImage HelpBrowser::fitted(const QImage &picture) const
{
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this); // which may come or go
    const int room = width() - 2 * frameWidth() - scrollBar - 2 * PageMargin;
    if (picture.width() <= room)
        return picture;
    const double scale = devicePixelRatioF();
    QImage smaller = picture.scaledToWidth(std::max(1, int(room * scale)), Qt::SmoothTransformation);
    smaller.setDevicePixelRatio(scale);
    return smaller;
}

void HelpBrowser::resizeEvent(QResizeEvent *event)
{
    QTextBrowser::resizeEvent(event);
    if (m_pictures.isEmpty() || event->size().width() == event->oldSize().width())
        return;
    for (auto picture = m_pictures.cbegin(); picture != m_pictures.cend(); ++picture)
        document()->addResource(QTextDocument::ImageResource, picture.key(), fitted(*picture));
    document()->markContentsDirty(0, document()->characterCount());
}

bool HelpBrowser::findText(const QString &text, bool backward)
{
    if (text.isEmpty())
        return true;
    setExtraSelections({}); // which look like the place that is found
    const QTextDocument::FindFlags flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (find(text, flags))
        return true;
    const QTextCursor before = textCursor();
    moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    if (find(text, flags))
        return true;
    setTextCursor(before);
    return false;
}

void HelpBrowser::markWords(const QStringList &words)
{
    QList<QTextEdit::ExtraSelection> marks;
    for (const QString &word : words) {
        const QString before = HelpSearch::standsWithoutBlanks(word) ? QString() : QStringLiteral("\\b");
        const QRegularExpression beginning(before + QRegularExpression::escape(word),
                                           QRegularExpression::CaseInsensitiveOption |
                                               QRegularExpression::UseUnicodePropertiesOption);
        for (QTextCursor at = document()->find(beginning); !at.isNull(); at = document()->find(beginning, at)) {
            QTextEdit::ExtraSelection mark;
            mark.cursor = at;
            mark.format.setBackground(palette().highlight());
            mark.format.setForeground(palette().highlightedText());
            marks.append(mark);
        }
    }
    setExtraSelections(marks);
    if (!marks.isEmpty()) {
        QTextCursor first = marks.first().cursor;
        first.clearSelection();
        setTextCursor(first);
    }
}

void HelpBrowser::zoomBy(int steps)
{
    const int zoom = std::clamp(m_zoom + steps, SmallestZoom, LargestZoom);
    zoomIn(zoom - m_zoom);
    m_zoom = zoom;
}

void HelpBrowser::resetZoom()
{
    zoomBy(-m_zoom);
}

/// The page takes the colours of its links when it is loaded.
void HelpBrowser::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty())
        reload();
}

void HelpBrowser::wheelEvent(QWheelEvent *event)
{
    const int turned = event->angleDelta().y();
    if (!(event->modifiers() & Qt::ControlModifier))
        QTextBrowser::wheelEvent(event);
    else if (turned != 0) // a touchpad turns sideways, too
        zoomBy(turned > 0 ? 1 : -1);
}
