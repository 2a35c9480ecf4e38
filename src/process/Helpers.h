#pragma once

#include "foundation/interface/InterfaceFile.h"

#include <QList>

#include <functional>

class QFileDialog;

namespace barquell {

/// Small operations that many rooms share. Failures are said in one line or, of opening an address, ignored.
class Helpers {
public:
    using Block = std::function<void()>;

    Helpers() = delete;

    /// Later on the main thread, also when called there. Any thread. An exception is logged and ends there,
    /// as with the other three. Delays are seconds; less than none is none.
    static void runOnMainThread(Block block);
    static void runOnMainThread(Block block, double withDelay);

    /// On a thread of the pool, several blocks at the same time. Any thread. A delay is the main run loop's.
    static void runInBackground(Block block);
    static void runInBackground(Block block, double withDelay);

    // What follows is for the main thread only.

    static void openURLString(const QString &string);
    static void openAppStoreURL();
    static void openAppStoreRateURL();
    static void openAccessibilityPrivacyPreferences();

    /// Loads an interface file of the bundle, see loadInterfaceFile. On success the caller's reference, if
    /// there is one, receives the top-level objects, which live only as long as somebody holds them; on
    /// failure it stays as it is.
    static bool loadNibNamed(const QString &name, QObject *owner, TopLevelObjects *topLevelObjects = nullptr);

    /// What the block makes of each element, in the collection's order and without those that it makes
    /// nothing of. The block's result is a std::optional.
    template <typename Collection, typename Map>
    static auto mapObjectsOf(const Collection &collection, Map withBlock);

    /// Leads a panel to where the user was last. Its "identifier" (a dynamic property) tells one kind of
    /// panel from another; without one, or with neither a last folder nor a fallback, nothing happens and the
    /// answer is false. In the fallback a leading tilde is the user's home, and "/Applications" wherever
    /// applications lie here.
    static bool loadLastPathForPanel(QFileDialog &panel, const QString &fallbackPath);
    static bool saveLastPathForPanel(const QFileDialog &panel);

    /// The identifier of the helper that starts us at login.
    static QString loginHelper();

    /// Switches the helper that starts us at login.
    static void setLoginItemEnabled(bool enabled);
};

template <typename Collection, typename Map>
auto Helpers::mapObjectsOf(const Collection &collection, Map withBlock) {
    using Result = typename decltype(withBlock(*collection.begin()))::value_type;
    QList<Result> results;
    results.reserve(static_cast<qsizetype>(collection.size()));
    for (const auto &element : collection) {
        if (auto result = withBlock(element)) {
            results.append(*std::move(result));
        }
    }
    return results;
}

} // namespace barquell
