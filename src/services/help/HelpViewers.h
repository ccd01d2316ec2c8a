#pragma once

#include "services/help/HelpDisplay.h"
#include "services/help/HelpFile.h"
#include "services/help/rules/HelpFavorites.h"

#include <map>

class AlertBox;
class HelpViewer;

/// The help windows, each by its name: "Main" with navigation, and "MboxHelp", a smaller one for the Help buttons of
/// alert boxes. A window is made when it is first asked for. Help that cannot be shown is told in an alert box.
class HelpViewers : public HelpDisplay
{
public:
    /// The user's favorites are kept in the given file. The language is that of the pages where they exist in it.
    HelpViewers(AlertBox &alert, const QString &favoritesPath, const QString &language = {});
    ~HelpViewers() override;

    bool HtmlHelp(const HelpTarget &target, HelpCommand command, const QVariant &data = {}) override;
    void showPopUp(QWidget *owner, int textId, const QPoint &screenPoint) override;

    /// The window with that name; null before it was asked for.
    HelpViewer *window(const QString &name) const;

private:
    bool refuse(int textId, const QString &detail = {});
    HelpFile &fileAt(const QString &path);
    HelpViewer &windowFor(const HelpTarget &target);
    static QString topicOf(const HelpFile &file, const HelpTarget &target, HelpCommand command, const QVariant &data);

    AlertBox &m_alert;
    HelpFavorites m_favorites;
    QString m_language;
    std::map<QString, HelpFile> m_files;
    std::map<QString, std::unique_ptr<HelpViewer>> m_windows;
};
