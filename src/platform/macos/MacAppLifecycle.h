#pragma once

#include "platform/AppLifecycle.h"

#include <memory>

namespace barquell {

/// The application beside Qt's own delegate. To be made before the QApplication: Qt then keeps our delegate
/// and passes on to it what it is asked. Main thread only.
class MacAppLifecycle final : public AppLifecycle {
public:
    MacAppLifecycle();
    ~MacAppLifecycle() override;
    MacAppLifecycle(const MacAppLifecycle &) = delete;
    MacAppLifecycle &operator=(const MacAppLifecycle &) = delete;

    void setDelegate(AppLifecycleDelegate *delegate) override;
    AppLifecycleDelegate *delegate() const override;
    void setScriptCommands(const ScriptCommands &commands) override;
    int run() override;
    void terminate() override;
    ActivationPolicy activationPolicy() const override;
    void setActivationPolicy(ActivationPolicy policy) override;
    void activate() override;
    void bringFirstProcessToFront() override;

private:
    struct Native; // what only Objective-C can name

    std::unique_ptr<Native> _native;
    AppLifecycleDelegate *_delegate = nullptr; // takes itself out before it goes
};

} // namespace barquell
