#pragma once

#include <QTabWidget>

#include <memory>

class HelpFavorites;
class HelpFile;
class HelpSearch;
class QListWidgetItem;
class QTreeWidgetItem;

namespace Ui {
class HelpNavigation;
}
struct HelpChapter;

/// The left side of the help viewer: contents, index, search and favorites. It knows the list of pages; what is chosen
/// goes up as a signal.
class HelpNavigation : public QTabWidget
{
    Q_OBJECT

public:
    enum Pane { Contents, Index, Search, Favorites };

    explicit HelpNavigation(QWidget *parent = nullptr);
    ~HelpNavigation() override;

    /// Must be called once, before anything else; both must outlive the widget.
    void fill(const HelpFile &file, HelpFavorites &favorites);

    /// Brings a pane to the front, with the focus where the user begins.
    void showPane(Pane pane);
    /// To be called when the viewer shows another page.
    void setCurrentPage(const QString &page);

Q_SIGNALS:
    /// words are what was searched for; empty when the page was not found by searching.
    void pageChosen(const QString &page, const QStringList &words = {});

private:
    void addChapters(const std::vector<HelpChapter> &chapters, QTreeWidgetItem *parent);
    void focusPane(Pane pane);
    void fillIndex();
    void filterIndex(const QString &text);
    void search();
    void makeSearchable();
    void listFavorites();
    void choose(const QListWidgetItem *item, const QStringList &words = {});

    std::unique_ptr<Ui::HelpNavigation> m_ui;
    std::unique_ptr<HelpSearch> m_search; ///< made at the first search
    const HelpFile *m_file = nullptr;
    HelpFavorites *m_favorites = nullptr;
    QString m_page;
    QStringList m_searchedWords;
};
