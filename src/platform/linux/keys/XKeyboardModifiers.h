#pragma once

#include "platform/ModifierState.h"
#include "platform/linux/keys/RunningKeymap.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace barquell {

/// The modifier keys that are held on the X server's keyboard, whichever window has it, left and right apart.
/// Main thread only.
class XKeyboardModifiers final : public ModifierState {
public:
    XKeyboardModifiers();

    /// 0 without a server.
    ModifierFlags currentFlags() const override;

    /// Calls from the run loop when the server's modifiers may have changed; nothing is polled. There is one
    /// listener. Never without a server, or one without the XKB extension.
    void watch(std::function<void()> mayHaveChanged);

private:
    void read();

    RunningKeymap _keys;
    std::optional<XConnection> _events;
    std::unique_ptr<QSocketNotifier> _notifier;
    std::function<void()> _mayHaveChanged;
};

} // namespace barquell
