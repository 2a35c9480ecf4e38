#include "app/StatusReport.h"

#include "blocking/Decision.h"
#include "blocking/TouchBarInterceptor.h"
#include "platform/Platform.h"
#include "platform/StatusBar.h"
#include "platform/Workspace.h"

#include <QStringList>

namespace barquell {

namespace {

QStringList pauseFlagNames(std::uint32_t flags) {
    QStringList names;
    if ((flags & PauseFlagBypassedApp) != 0) {
        names.append(QStringLiteral("bypassed application"));
    }
    if ((flags & PauseFlagScreenShield) != 0) {
        names.append(QStringLiteral("screen shield"));
    }
    return names;
}

QStringList pauseKeyNames(ModifierFlags flags) {
    const QString names = QString::fromStdString(blocking::maskNames(flags)); // "[Fn|CmdR]"
    return names.mid(1, names.size() - 2).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

} // namespace

QVariantMap statusReport() {
    const Workspace &workspace = *platform().workspace;
    const std::optional<RunningApplication> frontmost = workspace.frontmostApplication();
    return {
        {QStringLiteral("enabled"), TouchBarInterceptor::enabled()},
        {QStringLiteral("trusted"), TrustedProcessChecker::isTrusted()},
        {QStringLiteral("effectivelyEnabled"), TouchBarInterceptor::effectivelyEnabled()},
        {QStringLiteral("pauseFlags"), pauseFlagNames(TouchBarInterceptor::pauseFlags())},
        {QStringLiteral("pauseKeysHeld"), pauseKeyNames(TouchBarInterceptor::pauseKeysHeld())},
        {QStringLiteral("hasStatusBar"), platform().statusBar && platform().statusBar->hasHost()},
        {QStringLiteral("knowsFrontmostApplication"), workspace.canKnowFrontmostApplication()},
        {QStringLiteral("frontmostApplication"), frontmost ? frontmost->bundleIdentifier : QString()},
    };
}

} // namespace barquell
