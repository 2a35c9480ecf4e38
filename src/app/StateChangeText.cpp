#include "app/StateChangeText.h"

#include "blocking/TouchBarInterceptor.h"

namespace barquell {

namespace {

QString sourceName(int source) {
    switch (source) {
    case StateChangeSourceTap:
        return QStringLiteral("the tap");
    case StateChangeSourcePauseKeys:
        return QStringLiteral("the pause keys");
    default:
        return QStringLiteral("a pause flag");
    }
}

} // namespace

QString stateChangeText(int source, bool effectivelyEnabled) {
    const QString state = effectivelyEnabled ? QStringLiteral("in force") : QStringLiteral("suspended");
    return QStringLiteral("Blocking is %1 (%2)").arg(state, sourceName(source));
}

} // namespace barquell
