#include "process/Helpers.h"

#include "foundation/Bundle.h"
#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "platform/LoginItem.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"

#include <QCoreApplication>
#include <QThread>
#include <QThreadPool>
#include <QUrl>

#include <chrono>
#include <exception>

namespace barquell {

namespace {

/// The host is the store's own; the number is ours, and no place has to know it but the one that opens it.
const QString kStoreUrl = QStringLiteral("macappstore://apps.apple.com/app/id9970041826");
const QString kReviewSuffix = QStringLiteral("?action=write-review");
const QString kAccessibilityUrl =
    QStringLiteral("x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility");

constexpr double kNanoseconds = 1e9;
constexpr double kLongestDelay = 1e9; // seconds, 31 years

/// In nanoseconds as they are counted, and never early where the run loop counts milliseconds.
std::chrono::milliseconds delayOf(double seconds) {
    if (!(seconds > 0)) { // what is no number is no delay
        return {};
    }
    const double bounded = std::min(seconds, kLongestDelay);
    const std::chrono::nanoseconds delay(static_cast<std::int64_t>(bounded * kNanoseconds));
    return std::chrono::ceil<std::chrono::milliseconds>(delay);
}

/// Calls now on the main thread, else from its events.
void onMainThread(Helpers::Block task) {
    QCoreApplication *application = QCoreApplication::instance();
    if (!application) {
        return; // the program is at its end, and has no events any more
    }
    if (QThread::currentThread() == application->thread()) {
        task();
    } else {
        QMetaObject::invokeMethod(application, std::move(task), Qt::QueuedConnection);
    }
}

void perform(const Helpers::Block &block) {
    try {
        block();
    } catch (const std::exception &exception) {
        log(QStringLiteral("A task in the background failed: %1").arg(QString::fromUtf8(exception.what())));
    } catch (...) {
        log(QStringLiteral("A task in the background failed"));
    }
}

} // namespace

void Helpers::runOnMainThread(Block block) {
    onMainThread([block = std::move(block)] { RunLoop::main().performAsync(block); });
}

void Helpers::runOnMainThread(Block block, double withDelay) {
    onMainThread([block = std::move(block), delay = delayOf(withDelay)] {
        RunLoop::main().performAfter(delay, block);
    });
}

void Helpers::runInBackground(Block block) {
    QThreadPool::globalInstance()->start([block = std::move(block)] { perform(block); });
}

void Helpers::runInBackground(Block block, double withDelay) {
    runOnMainThread([block = std::move(block)] { runInBackground(block); }, withDelay);
}

void Helpers::openURLString(const QString &string) {
    const QUrl url(string, QUrl::StrictMode);
    Workspace *workspace = platform().workspace;
    if (workspace && url.isValid()) {
        workspace->openUrl(url);
    }
}

void Helpers::openAppStoreURL() {
    openURLString(kStoreUrl);
}

void Helpers::openAppStoreRateURL() {
    openURLString(kStoreUrl + kReviewSuffix);
}

void Helpers::openAccessibilityPrivacyPreferences() {
    openURLString(kAccessibilityUrl);
}

bool Helpers::loadNibNamed(const QString &name, QObject *owner, TopLevelObjects *topLevelObjects) {
    std::optional<TopLevelObjects> objects = loadInterfaceFile(name, owner);
    if (!objects) {
        log(QStringLiteral("Failed to load nib named %1").arg(name));
        return false;
    }
    if (topLevelObjects) {
        *topLevelObjects = *std::move(objects);
    }
    return true;
}

QString Helpers::loginHelper() {
    return Bundle::mainBundleIdentifier() + QStringLiteral(".launcher");
}

void Helpers::setLoginItemEnabled(bool enabled) {
    const QString helper = loginHelper();
    LoginItem *loginItem = platform().loginItem;
    if (!loginItem || !loginItem->setEnabled(helper, enabled)) {
        log(QStringLiteral("SMLoginItemSetEnabled(%1, %2) failed")
                .arg(helper, enabled ? QStringLiteral("YES") : QStringLiteral("NO")));
    }
}

} // namespace barquell
