#pragma once

#include "platform/AppLifecycle.h"
#include "platform/linux/session/ApplicationObject.h"
#include "platform/linux/session/RunningCopies.h"

namespace barquell {

class OwnWindows;

/// The program's life on a Linux desktop: launchers reach it through its object on the session bus, signals
/// end it in order, and the last closed window does not end it. Nothing is put on the bus before run().
class LinuxAppLifecycle final : public QObject, public AppLifecycle {
    Q_OBJECT
public:
    /// All must outlive this. Without windows of an X server (nullptr) the policy is only remembered and
    /// activation is the toolkit's.
    LinuxAppLifecycle(MessageBus &bus, RunningCopies &copies, OwnWindows *windows = nullptr);

    void setDelegate(AppLifecycleDelegate *delegate) override { _delegate = delegate; }
    AppLifecycleDelegate *delegate() const override { return _delegate; }
    void setScriptCommands(const ScriptCommands &commands) override { _object.commands = commands; }
    int run() override;
    void terminate() override;
    ActivationPolicy activationPolicy() const override { return _policy; }
    void setActivationPolicy(ActivationPolicy policy) override;
    void activate() override;
    void bringFirstProcessToFront() override {} // no such list here

private:
    void enterBus();
    void launch();
    void reopen(const QVariantMap &platformData);

    MessageBus &_bus;
    RunningCopies &_copies;
    OwnWindows *_windows;
    ApplicationObject _object{[this](const QVariantMap &data) { reopen(data); }};
    AppLifecycleDelegate *_delegate = nullptr;
    ActivationPolicy _policy = ActivationPolicy::Accessory;
    bool _launched = false;
    bool _startedByBus = false; // and the call that it was started for has not come yet
    bool _terminating = false;
};

} // namespace barquell
