#pragma once

#include "services/help/HelpNavigation.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class HelpBrowser;

namespace Ui {
class HelpViewer;
}

/// A window that shows the help file: the pages on the right, contents, index, search and favorites on the left. It
/// stays usable while a dialog of the program waits for an answer.
class HelpViewer : public QMainWindow
{
    Q_OBJECT

public:
    /// The small kind shows no navigation until the user asks for it. Both references must outlive the window.
    enum class Kind { Full, Small };

    HelpViewer(const HelpFile &file, HelpFavorites &favorites, Kind kind);
    ~HelpViewer() override;

    void showPage(const QString &page);
    /// Shows a pane of the navigation, with the home page beside it if no page was shown yet.
    void showPane(HelpNavigation::Pane pane);
    /// Shows the window before all others and makes it active.
    void bringToFront();

    QString page() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QAction *addTool(int textId, int picture, const QList<QKeySequence> &shortcuts, const std::function<void()> &run);
    void addTools();
    void onPageShown(const QString &page);
    void openFindBar();
    void find(bool backward);
    void stayUsable(QWidget *modal);

    std::unique_ptr<Ui::HelpViewer> m_ui;
    QAction *m_navigationTool = nullptr;
};
