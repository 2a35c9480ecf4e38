#pragma once

#include "evdev/CloneOutput.h"
#include "evdev/TouchReader.h"
#include "platform/linux/tapd/core/Ports.h"

namespace barquell::tapd {

class BarRelay;

/// A frame of a grabbed bar on its way.
struct BarFrame {
    const evdev::TouchFrame &touches;
    const evdev::Contacts &contacts;
    std::int64_t time = 0; ///< of its report, microseconds
    std::optional<std::int32_t> timestamp;
};

/// Where a bar's frames go; it calls pass() or swallow() of the bar for each, in their order, now or later.
class FrameSink {
public:
    virtual void frame(BarRelay &bar, const BarFrame &frame, Time now) = 0;

    /// The bar is about to go.
    virtual void forget(const BarRelay &bar) = 0;

protected:
    FrameSink() = default;
    FrameSink(const FrameSink &) = default;
    FrameSink &operator=(const FrameSink &) = default;
    ~FrameSink() = default;
};

/// One bar, and while it is wanted its grab and its clone. The clone is there, and known to its readers,
/// before the grab; the bar is grabbed and given back only while no finger is on it, tried again at each
/// frame. While the bar is free of fingers, so is the clone. One thread.
class BarRelay {
public:
    BarRelay(const evdev::DeviceDescription &bar, BarPort &port, FrameSink &sink, Log &log);
    /// What is still on the clone is cancelled, and all is given back.
    ~BarRelay();
    BarRelay(const BarRelay &) = delete;
    BarRelay &operator=(const BarRelay &) = delete;

    const BarPort &port() const { return _port; }
    bool isGrabbed() const { return _grabbed; }
    /// Otherwise its events may wait, and be lost.
    bool needsEvents() const { return _wanted || _grabbed; }

    void setWanted(bool wanted, Time now);

    /// Where it is wanted and has failed, tries anew.
    void retry(Time now);

    /// udev has told everybody of the clone.
    void cloneAppeared(Time now);

    /// What the bar's node reported.
    void read(std::span<const evdev::InputEvent> events, Time now);

    void pass(const evdev::Contacts &contacts, std::int64_t time, std::optional<std::int32_t> timestamp);

    /// Nothing of the frame reaches the clone, but a finger that has left the bar leaves the clone too.
    void swallow(const evdev::Contacts &contacts, std::int64_t time);

private:
    void settle(Time now);
    bool isFree(Time now);
    void resync(Time now);
    void deliver(std::int64_t time, Time now);
    void makeClone();
    void tryGrab(Time now);
    void giveBack();
    void send(const std::vector<evdev::InputEvent> &events);
    void fail(std::string_view what);

    evdev::DeviceDescription _clone;
    BarPort &_port;
    FrameSink &_sink;
    Log &_log;
    evdev::TouchReader _reader;
    evdev::CloneOutput _output;
    evdev::Contacts _wantedContacts; // for pass()
    bool _wanted = false;
    bool _hasClone = false;
    bool _cloneKnown = false;
    bool _grabbed = false;
    bool _failed = false; // not tried again until somebody asks anew
    bool _toldOfGrab = false;
    bool _eventsWaited = false; ///< when the bar was last asked
};

} // namespace barquell::tapd
