#include "app/ToggleRule.h"

#include "foundation/UserDefaults.h"

namespace barquell {

namespace {

QString activeKey() {
    return QStringLiteral("Active");
}

} // namespace

void toggleActive() {
    setActive(!UserDefaults::standard().boolForKey(activeKey()));
}

void setActive(bool active) {
    UserDefaults::standard().setObject(active, activeKey());
}

} // namespace barquell
