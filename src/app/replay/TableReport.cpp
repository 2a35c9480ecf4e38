#include "app/replay/TableReport.h"

#include "app/StateChangeText.h"
#include "blocking/Decision.h"

#include <array>
#include <cstdio>

namespace barquell::replay {

namespace {

const char *nameOf(EventType type) {
    switch (type) {
    case EventType::Gesture:
        return "touch";
    case EventType::FlagsChanged:
        return "modifier key";
    default:
        return "media key";
    }
}

const char *textFor(Reason reason) {
    switch (reason) {
    case Reason::BlockingOff:
        return "blocking is switched off";
    case Reason::NotTrusted:
        return "not trusted to filter";
    case Reason::Paused:
        return "blocking is paused";
    case Reason::PauseKeyHeld:
        return "a pause key is held";
    case Reason::NothingTouches:
        return "no finger is left on the bar";
    case Reason::Touching:
        return "a finger on the bar while blocking is in force";
    case Reason::ModifiersStripped:
        return "goes on without the pause keys";
    case Reason::NotHeldBack:
        break;
    }
    return "";
}

/// The keys as a person names them: a key with a known side by its side alone.
std::string keyNames(ModifierFlags flags) {
    for (const auto modifier : blocking::kSidedModifiers) {
        const blocking::SidedModifierBits bits = blocking::bitsOf(modifier);
        if ((flags & (bits.left | bits.right)) != 0) {
            flags &= ~bits.generic;
        }
    }
    const std::string names = blocking::maskNames(flags);
    return names.substr(1, names.size() - 2);
}

std::string seconds(std::int64_t microseconds) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%.3f", static_cast<double>(microseconds) / 1e6);
    return text.data();
}

std::string cell(const std::string &text, std::size_t width) {
    return text.size() < width ? text + std::string(width - text.size(), ' ') : text + ' ';
}

} // namespace

bool TableReport::Row::continues(const Row &row) const {
    return type == EventType::Gesture && type == row.type && flags == row.flags && touching == row.touching &&
           passed == row.passed && reason == row.reason;
}

void TableReport::event(const ReplayedEvent &event) {
    _summary.count(event);
    _time = event.time;
    const Row row{event.time,     event.time,   1,           event.type, event.flags,
                  event.touching, event.passed, event.reason};
    if (_row && row.continues(*_row)) {
        _row->last = row.last;
        ++_row->count;
        return;
    }
    writeRow();
    _row = row;
}

void TableReport::stateChange(const ReplayedStateChange &change) {
    ++_summary.stateChanges;
    _time = change.time;
    writeRow();
    writeLine(change.time, stateChangeText(change.source, change.effectivelyEnabled).toStdString());
}

void TableReport::logged(const QString &line) {
    writeRow();
    writeLine(_time, "log: " + line.toStdString());
}

void TableReport::writeHead() {
    if (!_headWritten) {
        _out << "Seconds            Event             Keys held      Fingers  Verdict  Why\n";
        _headWritten = true;
    }
}

void TableReport::writeRow() {
    if (!_row) {
        return;
    }
    writeHead();
    const Row &row = *_row;
    const std::string time =
        row.count == 1 ? seconds(row.first) : seconds(row.first) + " - " + seconds(row.last);
    const std::string event =
        nameOf(row.type) + (row.count == 1 ? std::string() : " x" + std::to_string(row.count));
    const std::string fingers = row.type == EventType::Gesture ? std::to_string(row.touching) : "";
    std::string line = cell(time, 19) + cell(event, 18) + cell(keyNames(row.flags), 15) + cell(fingers, 9) +
                       cell(row.passed ? "passed" : "BLOCKED", 9) + textFor(row.reason);
    line.erase(line.find_last_not_of(' ') + 1);
    _out << line << '\n';
    _row.reset();
}

void TableReport::writeLine(std::int64_t time, const std::string &text) {
    writeHead();
    _out << cell(seconds(time), 19) << "* " << text << '\n';
}

void TableReport::finish() {
    writeRow();
    _out << '\n'
         << _summary.gestures << " touch frames: " << _summary.passed << " passed, " << _summary.swallowed
         << " blocked. " << _summary.stateChanges
         << (_summary.stateChanges == 1 ? " change of state.\n" : " changes of state.\n");
}

} // namespace barquell::replay
