#pragma once

#include <QScrollArea>

#include <functional>
#include <vector>

class LinkList;
class QGridLayout;
class clsMRUFileList;

/// What the document area shows while no document is open: links to a new vocabulary, to files and to the lessons that
/// come with the program. It is filled when it shows for the first time.
class StartPage : public QScrollArea
{
    Q_OBJECT

public:
    /// What the links do, and what they lead to; all of it outlives the page.
    struct Needs
    {
        std::function<void()> newDocument;
        std::function<void()> open;
        std::function<void()> importList;
        std::function<void(const QString &path)> openFile;
        std::function<void(const QString &path)> openLesson;
        const clsMRUFileList &recentFiles;
        QString lessonFolder;
    };

    /// Lies over the area within the holder, hidden at first. It is no child of the area, which would hide it from
    /// screen readers.
    StartPage(QWidget &holder, QWidget &area, Needs needs);

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void build();
    void addLessons();
    void showRecentFiles();
    void placeLessons();
    void layOut();
    QRect place() const;

    QWidget &m_area;
    Needs m_needs;
    LinkList *m_recentFiles = nullptr;
    QGridLayout *m_lessonLayout = nullptr;
    std::vector<LinkList *> m_lessons; ///< a list a language
    int m_listsBeside = 0;             ///< how many of them stand in a row
};
