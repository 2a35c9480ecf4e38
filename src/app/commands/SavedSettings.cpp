#include "app/commands/SavedSettings.h"

#include "app/commands/Arguments.h"
#include "foundation/UserDefaults.h"

namespace barquell {

using Outcome = SettingsStore::Outcome;

/// What a failed write has to say was said by the store.
int saveSettings(UserDefaults &settings) {
    constexpr int tries = 20; // of a tenth of a second each, if somebody keeps the store locked
    Outcome outcome = Outcome::TryLater;
    for (int attempt = 0; attempt < tries && outcome == Outcome::TryLater; ++attempt) {
        outcome = settings.synchronize();
    }
    if (outcome == Outcome::TryLater) {
        return failure(QStringLiteral("The settings were not saved: another process keeps them locked"));
    }
    return outcome == Outcome::Done ? kExitSuccess : kExitFailure;
}

} // namespace barquell
