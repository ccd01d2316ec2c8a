#include "services/help/HelpBrowser.h"

#include "services/help/HelpFile.h"

#include <QDesktopServices>
#include <QRegularExpression>
#include <QTextBlock>
#include <QWheelEvent>

namespace {

constexpr int SmallestZoom = -4;
constexpr int LargestZoom = 12;
constexpr int PageMargin = 16; // pixels

const QString Scheme = QStringLiteral("help");

QUrl urlOf(const QString &page)
{
    return QUrl(Scheme + QStringLiteral(":/") + page);
}

} // namespace

HelpBrowser::HelpBrowser(QWidget *parent)
    : QTextBrowser(parent)
{
    // The toolkit would take every address with a scheme for one outside.
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
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

QString HelpBrowser::pageOf(const QUrl &source)
{
    return source.path().mid(1);
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    const QByteArray bytes = m_file->contents(pageOf(source().resolved(name)));
    if (type == QTextDocument::ImageResource)
        return QImage::fromData(bytes);
    return QString::fromUtf8(bytes);
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
        const QRegularExpression beginning(QStringLiteral("\\b") + QRegularExpression::escape(word),
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
    if (event->modifiers() & Qt::ControlModifier)
        zoomBy(event->angleDelta().y() > 0 ? 1 : -1);
    else
        QTextBrowser::wheelEvent(event);
}
