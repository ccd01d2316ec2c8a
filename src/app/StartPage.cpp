#include "app/StartPage.h"

#include "app/rules/Lessons.h"
#include "resources/StringTable.h"
#include "resources/TextLanguage.h"
#include "services/rules/LanguageNames.h"
#include "services/settings/clsMRUFileList.h"
#include "widgets/LinkList.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QDir>
#include <QGridLayout>
#include <QResizeEvent>
#include <QStyle>

#include <utility>

namespace {

constexpr int Margin = 24;        // pixels
constexpr int LettersOfPath = 44; // as wide as a path is shown
constexpr int NewText = 21130;    // What's This
constexpr int OpenText = NewText + 1;
constexpr int RecentText = NewText + 2;
constexpr int LessonText = NewText + 3;
constexpr int ImportText = NewText + 4;

/// Most folders are named after languages. A heading begins with a capital in every language.
QString titleOf(const Lessons::Group &group)
{
    const QString &language = TextLanguage::inUse();
    if (language.isEmpty())
        return group.title;
    const QString name = LanguageNames(language, LanguageNames::InList).translated(group.title);
    return name.left(1).toUpper() + name.mid(1);
}

} // namespace

StartPage::StartPage(QWidget &holder, QWidget &area, Needs needs)
    : QScrollArea(&holder)
    , m_area(area)
    , m_needs(std::move(needs))
{
    setObjectName(QStringLiteral("StartPage"));
    setAccessibleName(resText(14700));
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus); // its links have it
    area.installEventFilter(this);
    hide();
}

void StartPage::build()
{
    auto *page = new QWidget;
    page->setBackgroundRole(QPalette::Base);
    page->setForegroundRole(QPalette::Text);
    auto *columns = new QHBoxLayout(page);
    columns->setContentsMargins(Margin, Margin, Margin, Margin);
    columns->setSpacing(2 * Margin);
    auto *left = new QVBoxLayout;
    left->setSpacing(Margin);
    auto *start = new LinkList(resText(14701), page);
    start->setLinks({{resText(14702), {}, NewText, m_needs.newDocument},
                     {resText(14703), {}, OpenText, m_needs.open},
                     {resText(14706), {}, ImportText, m_needs.importList}});
    m_recentFiles = new LinkList(resText(14704), page);
    left->addWidget(start);
    left->addWidget(m_recentFiles);
    left->addStretch();
    columns->addLayout(left);
    m_lessonLayout = new QGridLayout;
    m_lessonLayout->setSpacing(Margin);
    columns->addLayout(m_lessonLayout);
    columns->addStretch();
    addLessons();
    setWidget(page);
}

void StartPage::addLessons()
{
    for (const Lessons::Group &group : Lessons::in(m_needs.lessonFolder)) {
        auto *list = new LinkList(group.title.isEmpty() ? resText(14705) : titleOf(group));
        std::vector<LinkList::Link> links;
        for (const Lessons::Lesson &lesson : group.lessons)
            links.push_back({lesson.title, {}, LessonText, [this, path = lesson.path] { m_needs.openLesson(path); }});
        m_lessons.push_back(list);
        m_lessonLayout->addWidget(list, int(m_lessons.size()), 0);
        list->setLinks(links);
    }
}

void StartPage::showRecentFiles()
{
    std::vector<LinkList::Link> links;
    for (int i = 1; i <= m_needs.recentFiles.FileCount(); ++i) {
        const QString path = m_needs.recentFiles.File(i);
        const QString shown = QDir::toNativeSeparators(path);
        const int width = fontMetrics().averageCharWidth() * LettersOfPath;
        links.push_back({fontMetrics().elidedText(shown, Qt::ElideMiddle, width), shown, RecentText,
                         [this, path] { m_needs.openFile(path); }});
    }
    m_recentFiles->setLinks(links);
}

/// As many lists side by side as there is room for.
void StartPage::placeLessons()
{
    int width = 1;
    for (const LinkList *list : m_lessons)
        width = std::max(width, list->sizeHint().width());
    const int left = widget()->layout()->itemAt(0)->sizeHint().width();
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const int room = m_area.width() - scrollBar - left - 4 * Margin;
    const int count = std::clamp(room / (width + Margin), 1, std::max(1, int(m_lessons.size())));
    if (std::exchange(m_listsBeside, count) == count)
        return;
    for (size_t i = 0; i < m_lessons.size(); ++i)
        m_lessonLayout->addWidget(m_lessons[i], int(i) / count, int(i) % count, Qt::AlignTop);
    m_lessonLayout->setRowStretch(int(m_lessons.size()), 1);
}

QRect StartPage::place() const
{
    return {m_area.mapTo(parentWidget(), QPoint()), m_area.size()};
}

void StartPage::showEvent(QShowEvent *event)
{
    if (!widget())
        build();
    showRecentFiles();
    setGeometry(place());
    placeLessons();
    QScrollArea::showEvent(event);
    layOut();
}

/// At once, not when the event loop comes to it: it would be drawn twice, the first time out of place.
void StartPage::layOut()
{
    for (LinkList *list : widget()->findChildren<LinkList *>())
        QCoreApplication::sendPostedEvents(list, QEvent::LayoutRequest);
    QCoreApplication::sendPostedEvents(widget(), QEvent::LayoutRequest);
}

void StartPage::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    if (widget())
        placeLessons();
}

bool StartPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_area && event->type() == QEvent::Resize)
        setGeometry(place());
    return QScrollArea::eventFilter(watched, event);
}
