#include "services/help/HelpViewers.h"

#include "resources/StringTable.h"
#include "services/AlertBox.h"
#include "services/help/HelpViewer.h"

#include <QDir>
#include <QWhatsThis>

namespace {

constexpr int FileMissing = 13000;
constexpr int TopicMissing = 13001;
const QString AlertWindow = QStringLiteral("MboxHelp");

} // namespace

HelpViewers::HelpViewers(AlertBox &alert, const QString &favoritesPath, const QString &language)
    : m_alert(alert)
    , m_favorites(favoritesPath)
    , m_language(language)
{
}

HelpViewers::~HelpViewers() = default;

HelpViewer *HelpViewers::window(const QString &name) const
{
    const auto found = m_windows.find(name);
    return found == m_windows.end() ? nullptr : found->second.get();
}

bool HelpViewers::HtmlHelp(const HelpTarget &target, HelpCommand command, const QVariant &data)
{
    HelpFile &file = fileAt(target.HTMLHelpFile);
    if (!file.open())
        return refuse(FileMissing, QDir::toNativeSeparators(file.path()));
    const bool topic = command == HH_DISPLAY_TOPIC || command == HH_HELP_CONTEXT;
    const QString page = topic ? topicOf(file, target, command, data) : QString();
    if (topic && page.isEmpty())
        return refuse(TopicMissing);
    HelpViewer &viewer = windowFor(target);
    if (topic)
        viewer.showPage(page);
    else
        viewer.showPane(HelpNavigation::Pane(command - HH_DISPLAY_TOC));
    viewer.bringToFront();
    return true;
}

void HelpViewers::showPopUp(QWidget *owner, int textId, const QPoint &screenPoint)
{
    QWhatsThis::showText(screenPoint, resText(textId), owner);
}

QString HelpViewers::topicOf(const HelpFile &file, const HelpTarget &target, HelpCommand command, const QVariant &data)
{
    const bool byId = command == HH_HELP_CONTEXT;
    return file.pageNamed(byId ? file.pageOf(data.toInt(), target.ContextHelpFile) : data.toString());
}

bool HelpViewers::refuse(int textId, const QString &detail)
{
    m_alert.show(QApplication::activeWindow(),
                 {.prompt = detail.isEmpty() ? resText(textId) : resText(textId).arg(detail)});
    return false;
}

HelpFile &HelpViewers::fileAt(const QString &path)
{
    return m_files.try_emplace(path, path, m_language).first->second;
}

HelpViewer &HelpViewers::windowFor(const HelpTarget &target)
{
    std::unique_ptr<HelpViewer> &viewer = m_windows[target.HelpWindow];
    if (!viewer) {
        const HelpViewer::Kind kind =
            target.HelpWindow == AlertWindow ? HelpViewer::Kind::Small : HelpViewer::Kind::Full;
        viewer = std::make_unique<HelpViewer>(fileAt(target.HTMLHelpFile), m_favorites, kind);
    }
    return *viewer;
}
