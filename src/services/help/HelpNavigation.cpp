#include "services/help/HelpNavigation.h"

#include "resources/StringTable.h"
#include "services/FormTexts.h"
#include "services/help/HelpFile.h"
#include "services/help/rules/HelpFavorites.h"
#include "services/help/rules/HelpSearch.h"

#include "ui_HelpNavigation.h"

#include <QCollator>
#include <QTabBar>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QTreeWidgetItemIterator>

namespace {

constexpr int PageRole = Qt::UserRole;
constexpr int FirstTabText = 13005;
constexpr int ClearBox = 13032;
constexpr int NothingFound = 13020;
constexpr int OneFound = 13021;
constexpr int SeveralFound = 13022;

void addEntry(QListWidget *list, const QString &text, const QString &page)
{
    auto *item = new QListWidgetItem(text, list);
    item->setData(PageRole, page);
}

} // namespace

HelpNavigation::HelpNavigation(QWidget *parent)
    : QTabWidget(parent)
    , m_ui(std::make_unique<Ui::HelpNavigation>())
{
    m_ui->setupUi(this);
    for (int tab = 0; tab < count(); ++tab)
        setTabText(tab, resText(FirstTabText + tab));
    for (const QLineEdit *box : {m_ui->keyword, m_ui->words})
        box->findChild<QToolButton *>()->setAccessibleName(resText(ClearBox));
    // Who walks along the tabs with the arrow keys stays there.
    connect(this, &QTabWidget::currentChanged, this, [this](int pane) {
        if (!tabBar()->hasFocus())
            focusPane(Pane(pane));
    });
    const auto choosePage = [this](const QListWidgetItem *item) { choose(item); };
    connect(m_ui->contents, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem *item) {
        if (item && item->data(0, PageRole).toString() != m_page)
            Q_EMIT pageChosen(item->data(0, PageRole).toString());
    });
    connect(m_ui->keyword, &QLineEdit::textChanged, this, &HelpNavigation::filterIndex);
    connect(m_ui->keyword, &QLineEdit::returnPressed, this, [this] { choose(m_ui->keywords->currentItem()); });
    connect(m_ui->words, &QLineEdit::returnPressed, this, &HelpNavigation::search);
    connect(m_ui->listTopics, &QPushButton::clicked, this, &HelpNavigation::search);
    connect(m_ui->found, &QListWidget::currentItemChanged, this,
            [this](const QListWidgetItem *item) { choose(item, m_searchedWords); });
    for (QListWidget *list : {m_ui->keywords, m_ui->favorites}) {
        connect(list, &QListWidget::itemClicked, this, choosePage);
        connect(list, &QListWidget::itemActivated, this, choosePage);
    }
    connect(m_ui->add, &QPushButton::clicked, this, [this] {
        m_favorites->add(m_page);
        listFavorites();
    });
    connect(m_ui->remove, &QPushButton::clicked, this, [this] {
        if (const QListWidgetItem *item = m_ui->favorites->currentItem())
            m_favorites->remove(item->data(PageRole).toString());
        listFavorites();
    });
}

HelpNavigation::~HelpNavigation() = default;

void HelpNavigation::fill(const HelpFile &file, HelpFavorites &favorites)
{
    m_file = &file;
    m_favorites = &favorites;
    const QSignalBlocker quiet(m_ui->contents);
    addChapters(file.book().chapters, m_ui->contents->invisibleRootItem());
    m_ui->contents->expandAll();
    fillIndex();
    listFavorites();
}

void HelpNavigation::addChapters(const std::vector<HelpChapter> &chapters, QTreeWidgetItem *parent)
{
    for (const HelpChapter &chapter : chapters) {
        auto *item = new QTreeWidgetItem(parent, {chapter.title});
        item->setData(0, PageRole, chapter.page);
        addChapters(chapter.chapters, item);
    }
}

void HelpNavigation::fillIndex()
{
    std::vector<HelpKeyword> keywords = m_file->book().keywords;
    QCollator order;
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(keywords.begin(), keywords.end(), [&order](const HelpKeyword &a, const HelpKeyword &b) {
        return order.compare(a.word, b.word) < 0;
    });
    for (const HelpKeyword &keyword : keywords)
        addEntry(m_ui->keywords, keyword.word, keyword.page);
}

/// Shows the keywords that hold the text; the first that begins with it becomes the current one.
void HelpNavigation::filterIndex(const QString &text)
{
    QListWidgetItem *best = nullptr;
    bool begins = false;
    for (int row = 0; row < m_ui->keywords->count(); ++row) {
        QListWidgetItem *item = m_ui->keywords->item(row);
        item->setHidden(!item->text().contains(text, Qt::CaseInsensitive));
        const bool better = !begins && item->text().startsWith(text, Qt::CaseInsensitive);
        if (!item->isHidden() && (!best || better))
            best = item;
        begins = begins || better;
    }
    m_ui->keywords->setCurrentItem(best);
}

void HelpNavigation::makeSearchable()
{
    m_search = std::make_unique<HelpSearch>();
    for (const HelpChapter *chapter : m_file->book().pages()) {
        const QString html = QString::fromUtf8(m_file->contents(m_file->shownFor(chapter->page)));
        m_search->addPage(chapter->page, chapter->title, QTextDocumentFragment::fromHtml(html).toPlainText());
    }
}

void HelpNavigation::search()
{
    if (!m_search)
        makeSearchable();
    const std::vector<HelpSearch::Hit> hits = m_search->find(m_ui->words->text());
    m_searchedWords = m_ui->words->text().simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    {
        const QSignalBlocker quiet(m_ui->found);
        m_ui->found->clear();
        for (const HelpSearch::Hit &hit : hits)
            addEntry(m_ui->found, hit.title, hit.page);
    }
    const QString several = resText(SeveralFound).arg(hits.size());
    m_ui->outcome->setText(hits.empty() ? resText(NothingFound) : hits.size() == 1 ? resText(OneFound) : several);
    m_ui->found->setCurrentRow(0);
}

void HelpNavigation::listFavorites()
{
    m_ui->favorites->clear();
    for (const QString &page : m_favorites->pages()) {
        const QString title = m_file->book().titleOf(page);
        if (!title.isEmpty())
            addEntry(m_ui->favorites, title, page);
    }
}

void HelpNavigation::choose(const QListWidgetItem *item, const QStringList &words)
{
    if (item)
        Q_EMIT pageChosen(item->data(PageRole).toString(), words);
}

void HelpNavigation::showPane(Pane pane)
{
    setCurrentIndex(pane);
    focusPane(pane);
}

void HelpNavigation::focusPane(Pane pane)
{
    QWidget *const firsts[] = {m_ui->contents, m_ui->keyword, m_ui->words, m_ui->favorites};
    firsts[pane]->setFocus(Qt::OtherFocusReason);
}

void HelpNavigation::setCurrentPage(const QString &page)
{
    m_page = page;
    for (QTreeWidgetItemIterator item(m_ui->contents); *item; ++item) {
        if ((*item)->data(0, PageRole).toString() == page)
            return m_ui->contents->setCurrentItem(*item);
    }
    m_ui->contents->setCurrentItem(nullptr);
}
