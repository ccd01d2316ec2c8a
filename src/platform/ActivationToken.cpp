#include "platform/ActivationToken.h"

#include "platform/WaylandDesktop.h"

namespace {

constexpr char Variable[] = "XDG_ACTIVATION_TOKEN";  // the toolkit looks for it there
constexpr char OldVariable[] = "DESKTOP_STARTUP_ID"; // in which older desktops give it

} // namespace

QString ActivationToken::ofThisStart()
{
    if (!WaylandDesktop::isHere())
        return {};
    return qEnvironmentVariable(Variable, qEnvironmentVariable(OldVariable));
}

void ActivationToken::use(const QString &token)
{
    if (!token.isEmpty())
        qputenv(Variable, token.toUtf8());
}
