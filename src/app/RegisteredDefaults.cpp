#include "app/RegisteredDefaults.h"

#include "foundation/UserDefaults.h"

namespace barquell {

void registerDefaults(UserDefaults &settings) {
    settings.registerDefaults({
        {QStringLiteral("Enabled"), true},
        {QStringLiteral("PauseKeyAllowed"), true},
        {QStringLiteral("PauseKeyFn"), true},
        {QStringLiteral("ShowStatusItem"), true},
        {QStringLiteral("HUDLocation"), 1},
        {QStringLiteral("ShowHUDPauseKeys"), true},
        {QStringLiteral("ShowHUDFrontApp"), true},
        {QStringLiteral("ClearPauseKeys"), true},
        {QStringLiteral("AnimatedWindowSizing"), true},
    });
}

} // namespace barquell
