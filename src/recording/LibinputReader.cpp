#include "recording/CleanText.h"
#include "recording/Intake.h"
#include "recording/LibinputTree.h"
#include "recording/Number.h"
#include "recording/Readers.h"
#include "recording/YamlStream.h"

#include <array>
#include <utility>

namespace barquell::recording {

namespace {

/// Recordings are some ten levels deep. libyaml remembers each level, so that this also bounds its memory.
constexpr std::size_t kMaximumDepth = 256;

class LibinputReader {
public:
    explicit LibinputReader(const ByteSource &source) : _yaml(source) {}

    Recording read();

private:
    struct Level {
        Node node = Node::Unknown;
        bool isMapping = false;
        bool atKey = false;
        std::string key;
    };

    bool step(YamlStream::Kind kind);
    bool takeScalar();
    bool takeValue(Node parent, std::string_view key, std::string_view text);
    bool takeHead(std::string_view key, std::string_view text);
    bool takeListed(Node list, std::string_view text);
    bool open(bool isMapping);
    bool enter(Node child, std::string_view key);
    bool close();
    void closeDevice();
    bool closeIdentity();
    bool closeAxis(std::string_view key);
    void finish(YamlStream::Kind last);
    bool complain(std::string_view what) { return _intake.complain(what, _yaml.line()); }
    bool damaged() { return complain("damaged"); }

    YamlStream _yaml;
    Intake _intake;
    std::vector<Level> _levels{Level{Node::Text, false, false, {}}};
    std::array<std::int64_t, 5> _numbers{}; ///< of the list that is being read, where its size is fixed
    std::size_t _numberCount = 0;
    std::size_t _codesType = 0;
    bool _deviceIsOpen = false;
    bool _hasName = false;
    bool _hasEvents = false;
    std::int64_t _announcedDevices = 1;
};

Recording LibinputReader::read() {
    YamlStream::Kind kind = _yaml.next();
    while (kind != YamlStream::Kind::End && kind != YamlStream::Kind::Broken && step(kind)) {
        kind = _yaml.next();
    }
    finish(kind);
    return _intake.take();
}

bool LibinputReader::step(YamlStream::Kind kind) {
    switch (kind) {
    case YamlStream::Kind::Scalar:
        return takeScalar();
    case YamlStream::Kind::MappingStart:
        return open(true);
    case YamlStream::Kind::SequenceStart:
        return open(false);
    case YamlStream::Kind::CollectionEnd:
        return close();
    default:
        return true;
    }
}

bool LibinputReader::takeScalar() {
    Level &level = _levels.back();
    if (!level.isMapping) {
        return takeValue(level.node, {}, _yaml.text());
    }
    level.atKey = !level.atKey;
    if (!level.atKey) {
        level.key = _yaml.text();
        return true;
    }
    return takeValue(level.node, level.key, _yaml.text());
}

bool LibinputReader::takeValue(Node parent, std::string_view key, std::string_view text) {
    if (isNumberList(parent)) {
        return takeListed(parent, text);
    }
    switch (parent) {
    case Node::Top:
        return takeHead(key, text);
    case Node::Description:
        if (key == "name") {
            _intake.description().name = cleanName(text);
            _hasName = true;
        }
        return true;
    case Node::Device:
        _hasEvents = _hasEvents || key == "events"; // the recorder leaves the value out where there are none
        return true;
    case Node::Events:
        return damaged();
    default:
        return true;
    }
}

bool LibinputReader::takeHead(std::string_view key, std::string_view text) {
    if (key == "version" && text != "1") {
        return complain("a version of the format that is not known");
    }
    if (key == "ndevices") {
        const auto number = wholeNumber(text);
        _announcedDevices = number.value_or(0);
        return number || damaged();
    }
    return true;
}

bool LibinputReader::takeListed(Node list, std::string_view text) {
    const auto number = wholeNumber(text);
    if (!number) {
        return damaged();
    }
    if (const auto size = listSize(list)) {
        if (_numberCount == *size) {
            return damaged();
        }
        _numbers.at(_numberCount++) = *number;
        return true;
    }
    if (!std::in_range<std::uint16_t>(*number)) {
        return complain("code out of range");
    }
    const auto code = static_cast<std::size_t>(*number);
    if (list == Node::Codes) {
        _intake.declareCode(_codesType, code);
    } else if (auto &properties = _intake.description().properties; code < properties.size()) {
        properties.set(code);
    }
    return true;
}

bool LibinputReader::open(bool isMapping) {
    if (_levels.size() == kMaximumDepth) {
        return complain("nested too deeply");
    }
    Level &parent = _levels.back();
    Node child = Node::Unknown;
    if (parent.isMapping && parent.atKey) {
        parent.key.clear(); // a key that is no text is none we know
    } else {
        child = childOf(parent.node, parent.key, isMapping);
    }
    if (child == Node::Unknown && (isNumberList(parent.node) || parent.node == Node::Events)) {
        return damaged();
    }
    parent.atKey = parent.isMapping && !parent.atKey;
    if (!enter(child, parent.key)) {
        return false;
    }
    _levels.push_back({child, isMapping, isMapping, {}});
    return true;
}

bool LibinputReader::enter(Node child, std::string_view key) {
    _numberCount = 0;
    if (child == Node::Device) {
        _hasName = false;
        _hasEvents = false;
        _deviceIsOpen = _intake.beginDevice(_yaml.line());
        return _deviceIsOpen;
    }
    if (child == Node::EventItems) {
        _hasEvents = true;
    } else if (child == Node::Codes) {
        const auto type = wholeNumber(key);
        if (!type || !std::in_range<std::uint16_t>(*type)) {
            return damaged();
        }
        _codesType = static_cast<std::size_t>(*type);
    }
    return true;
}

bool LibinputReader::close() {
    const Node node = _levels.back().node;
    _levels.pop_back();
    if (const auto size = listSize(node); size && _numberCount != *size) {
        return damaged();
    }
    switch (node) {
    case Node::Device:
        closeDevice();
        return true;
    case Node::Identity:
        return closeIdentity();
    case Node::Axis:
        return closeAxis(_levels.back().key);
    case Node::Event:
        return _intake.add({_numbers[0], _numbers[1], _numbers[2], _numbers[3], _numbers[4]}, _yaml.line());
    default:
        return true;
    }
}

void LibinputReader::closeDevice() {
    _deviceIsOpen = false;
    if (!_hasName) {
        _intake.dropDevice();
        complain("cut short: a device without a name");
    } else if (!_hasEvents) {
        complain("cut short: a device without events");
    }
}

bool LibinputReader::closeIdentity() {
    evdev::DeviceDescription &device = _intake.description();
    const std::array fields{&device.bus, &device.vendor, &device.product, &device.version};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (!std::in_range<std::uint16_t>(_numbers.at(i))) {
            return complain("number out of range");
        }
        *fields.at(i) = static_cast<std::uint16_t>(_numbers.at(i));
    }
    return true;
}

bool LibinputReader::closeAxis(std::string_view key) {
    const auto code = wholeNumber(key);
    if (!code || !std::in_range<std::uint16_t>(*code)) {
        return damaged();
    }
    evdev::AxisInfo axis;
    const std::array fields{&axis.minimum, &axis.maximum, &axis.fuzz, &axis.flat, &axis.resolution};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (!std::in_range<std::int32_t>(_numbers.at(i))) {
            return complain("number out of range");
        }
        *fields.at(i) = static_cast<std::int32_t>(_numbers.at(i));
    }
    if (*code <= evdev::kAbsMax) {
        _intake.description().axes[static_cast<std::uint16_t>(*code)] = axis;
    }
    return true;
}

void LibinputReader::finish(YamlStream::Kind last) {
    if (_deviceIsOpen && !_hasName) {
        _intake.dropDevice();
    }
    if (last == YamlStream::Kind::Broken && _yaml.isTooLong()) {
        complain("a text that is too long");
    } else if (last == YamlStream::Kind::Broken && !_yaml.brokeAtEnd()) {
        complain(std::string("not YAML (") + _yaml.problem() + ")");
    } else if (last == YamlStream::Kind::Broken ||
               (last == YamlStream::Kind::End && _yaml.endsWithinLine())) {
        _intake.complain("cut short", _yaml.lastLine());
    } else if (last == YamlStream::Kind::End && _intake.hasDevice() &&
               std::cmp_less(_intake.deviceCount(), _announcedDevices)) {
        _intake.complain("cut short: devices are missing", _yaml.lastLine());
    }
}

} // namespace

Recording readLibinputRecord(const ByteSource &source) {
    return LibinputReader(source).read();
}

Recording readLibinputRecord(std::string_view text) {
    return readLibinputRecord(textSource(text));
}

} // namespace barquell::recording
