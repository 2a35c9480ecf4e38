#include "app/replay/JsonReport.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <array>
#include <cstdio>

namespace barquell::replay {

namespace {

std::string quoted(const std::string &text) {
    const QJsonArray array{QString::fromStdString(text)};
    const QByteArray json = QJsonDocument(array).toJson(QJsonDocument::Compact);
    return json.mid(1, json.size() - 2).toStdString();
}

const char *nameOf(EventType type) {
    switch (type) {
    case EventType::Gesture:
        return "gesture";
    case EventType::FlagsChanged:
        return "flagsChanged";
    default:
        return "systemDefined";
    }
}

std::array<char, 40> seconds(std::int64_t microseconds) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%lld.%06lld", static_cast<long long>(microseconds / 1000000),
                  static_cast<long long>(microseconds % 1000000));
    return text;
}

} // namespace

void ReplaySummary::count(const ReplayedEvent &event) {
    if (event.type == EventType::Gesture) {
        ++gestures;
        ++(event.passed ? passed : swallowed);
    }
}

void JsonReport::event(const ReplayedEvent &event) {
    _summary.count(event);
    std::array<char, 32> flags{};
    std::snprintf(flags.data(), flags.size(), "0x%llx", static_cast<unsigned long long>(event.flags));
    _out << "{\"time\": " << seconds(event.time).data() << ", \"device\": " << quoted(event.device)
         << ", \"event\": \"" << nameOf(event.type) << "\", \"flags\": \"" << flags.data()
         << "\", \"touches\": " << event.touches << ", \"touching\": " << event.touching
         << ", \"verdict\": \"" << (event.passed ? "pass" : "swallow") << "\"}\n";
}

void JsonReport::stateChange(const ReplayedStateChange &change) {
    ++_summary.stateChanges;
    _out << "{\"time\": " << seconds(change.time).data() << ", \"stateChange\": " << change.source
         << ", \"effectivelyEnabled\": " << (change.effectivelyEnabled ? "true" : "false") << "}\n";
}

void JsonReport::finish() {
    _out << "{\"summary\": {\"gestures\": " << _summary.gestures << ", \"passed\": " << _summary.passed
         << ", \"swallowed\": " << _summary.swallowed << ", \"stateChanges\": " << _summary.stateChanges
         << "}}\n";
}

} // namespace barquell::replay
