#pragma once

#include "platform/registry/RegistryTree.h"
#include "services/settings/clsAppProperties.h"

/// The settings of a first run.
struct StoredSettings
{
    RegistryTree store;
    clsAppProperties settings{store, QStringLiteral("glosaria")};
};
