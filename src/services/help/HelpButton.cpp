#include "services/help/HelpButton.h"

#include "platform/TitleBar.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"

#include <QGuiApplication>
#include <QWhatsThis>

namespace {

constexpr int Sign = 14020;
constexpr int Name = 14021;
constexpr int ToolTip = 14022;
constexpr int Explanation = 21020;

} // namespace

HelpButton::HelpButton(QWidget *parent)
    : QToolButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setText(resText(Sign));
    setAccessibleName(resText(Name));
    setToolTip(resText(ToolTip));
    FormTexts::setWhatsThis(this, Explanation);
    connect(this, &QToolButton::clicked, this, [] { QWhatsThis::enterWhatsThisMode(); });
    if (TitleBar::hasHelpButton(QGuiApplication::platformName(), qEnvironmentVariable("XDG_CURRENT_DESKTOP")))
        hide();
}
