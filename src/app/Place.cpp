#include "app/Place.h"

#include "platform/Platform.h"
#include "platform/linux/FileSettingsStore.h"

namespace barquell {

void installThisMachine() {
    static FileSettingsStore settings(FileSettingsStore::defaultPath());
    installPlatform({.settingsStore = &settings});
}

} // namespace barquell
