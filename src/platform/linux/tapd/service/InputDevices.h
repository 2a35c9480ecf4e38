#pragma once

#include "platform/linux/tapd/core/TapServer.h"
#include "platform/linux/tapd/kernel/DeviceWatch.h"
#include "platform/linux/tapd/kernel/KernelBar.h"
#include "platform/linux/tapd/kernel/KernelKeyboard.h"
#include "platform/linux/tapd/service/Poller.h"

#include <map>

namespace barquell::tapd {

/// The bars and keyboards that are plugged in: found, read, told to the server, and let go. One thread.
class InputDevices {
public:
    static constexpr std::size_t kMaximumKeyboards = 32;

    InputDevices(TapServer &server, Poller &poller, Log &log) : _server(server), _poller(poller), _log(log) {}
    ~InputDevices() { close(); }
    InputDevices(const InputDevices &) = delete;
    InputDevices &operator=(const InputDevices &) = delete;

    /// False where udev cannot be reached.
    bool start();

    void readWatch() { _watch->read(); }
    void readBar(int node, Time now);
    void readKeyboard(int node);

    /// Has the bars read, or not, as the server wants it now.
    void updateWanted();

    std::optional<Time> deadline() const { return _yard.deadline(); }
    void advance(Time now) { _yard.advance(now); }

    /// Gives everything back; what then remains is clones on their way out.
    void close();

private:
    struct Bar {
        KernelBar device;
        std::string sysname;
        bool isRead = true;
    };
    struct Keyboard {
        KernelKeyboard device;
        std::string sysname;
    };

    void found(const FoundDevice &device);
    void fillRoom();
    bool isKnown(const std::string &sysname) const;
    void foundClone(const std::string &sysname);
    void addBar(FileDescriptor node, const evdev::DeviceDescription &description, const std::string &sysname);
    void addKeyboard(FileDescriptor node, const evdev::DeviceDescription &description,
                     const std::string &sysname);

    TapServer &_server;
    Poller &_poller;
    Log &_log;
    std::unique_ptr<DeviceWatch> _watch;
    CloneYard _yard;
    std::map<int, Bar> _bars; // by their nodes' descriptors
    std::map<int, Keyboard> _keyboards;
    bool _leftAlone = false; // a device, for lack of room
    bool _roomAgain = false;
};

} // namespace barquell::tapd
