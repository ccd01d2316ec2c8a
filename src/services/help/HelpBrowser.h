#pragma once

#include <QHash>
#include <QImage>
#include <QTextBrowser>

class HelpFile;

/// Shows the pages of the help file, in the help's language where they exist in it. Links between pages are followed
/// here, links to the web and to mail by the desktop.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget *parent = nullptr);

    /// Must be called once, before a page is shown; the file must outlive the browser.
    void setHelpFile(const HelpFile &file) { m_file = &file; }

    void showPage(const QString &page);
    /// The page shown; empty before the first.
    QString page() const;
    QString pageOf(const QUrl &source) const;

    /// Goes to the next place of a text, from the end on at the start; false when the page does not hold it.
    bool findText(const QString &text, bool backward);
    /// Marks every word that begins like one of these.
    void markWords(const QStringList &words);

    void zoomBy(int steps);
    void resetZoom();

    QVariant loadResource(int type, const QUrl &name) override;

protected:
    void doSetSource(const QUrl &name, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void follow(const QUrl &link);
    void setDirection(const QUrl &source);
    /// The picture, made smaller where it is wider than the page.
    QImage fitted(const QImage &picture) const;

    const HelpFile *m_file = nullptr;
    QHash<QUrl, QImage> m_pictures; ///< of the page
    int m_zoom = 0;                 ///< steps above (or below) the normal size
};
