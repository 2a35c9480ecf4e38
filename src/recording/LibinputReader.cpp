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
    explicit LibinputReader(const ByteSource &source) : yaml_(source) {}

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
    bool complain(std::string_view what) { return intake_.complain(what, yaml_.line()); }
    bool damaged() { return complain("damaged"); }

    YamlStream yaml_;
    Intake intake_;
    std::vector<Level> levels_{Level{Node::Text, false, false, {}}};
    std::array<std::int64_t, 5> numbers_{}; ///< of the list that is being read, where its size is fixed
    std::size_t numberCount_ = 0;
    std::size_t codesType_ = 0;
    bool deviceIsOpen_ = false;
    bool hasName_ = false;
    bool hasEvents_ = false;
    std::int64_t announcedDevices_ = 1;
};

Recording LibinputReader::read() {
    YamlStream::Kind kind = yaml_.next();
    while (kind != YamlStream::Kind::End && kind != YamlStream::Kind::Broken && step(kind)) {
        kind = yaml_.next();
    }
    finish(kind);
    return intake_.take();
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
    Level &level = levels_.back();
    if (!level.isMapping) {
        return takeValue(level.node, {}, yaml_.text());
    }
    level.atKey = !level.atKey;
    if (!level.atKey) {
        level.key = yaml_.text();
        return true;
    }
    return takeValue(level.node, level.key, yaml_.text());
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
            intake_.description().name = cleanName(text);
            hasName_ = true;
        }
        return true;
    case Node::Device:
        hasEvents_ = hasEvents_ || key == "events"; // the recorder leaves the value out where there are none
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
        announcedDevices_ = number.value_or(0);
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
        if (numberCount_ == *size) {
            return damaged();
        }
        numbers_.at(numberCount_++) = *number;
        return true;
    }
    if (!std::in_range<std::uint16_t>(*number)) {
        return complain("code out of range");
    }
    const auto code = static_cast<std::size_t>(*number);
    if (list == Node::Codes) {
        intake_.declareCode(codesType_, code);
    } else if (auto &properties = intake_.description().properties; code < properties.size()) {
        properties.set(code);
    }
    return true;
}

bool LibinputReader::open(bool isMapping) {
    if (levels_.size() == kMaximumDepth) {
        return complain("nested too deeply");
    }
    Level &parent = levels_.back();
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
    levels_.push_back({child, isMapping, isMapping, {}});
    return true;
}

bool LibinputReader::enter(Node child, std::string_view key) {
    numberCount_ = 0;
    if (child == Node::Device) {
        hasName_ = false;
        hasEvents_ = false;
        deviceIsOpen_ = intake_.beginDevice(yaml_.line());
        return deviceIsOpen_;
    }
    if (child == Node::EventItems) {
        hasEvents_ = true;
    } else if (child == Node::Codes) {
        const auto type = wholeNumber(key);
        if (!type || !std::in_range<std::uint16_t>(*type)) {
            return damaged();
        }
        codesType_ = static_cast<std::size_t>(*type);
    }
    return true;
}

bool LibinputReader::close() {
    const Node node = levels_.back().node;
    levels_.pop_back();
    if (const auto size = listSize(node); size && numberCount_ != *size) {
        return damaged();
    }
    switch (node) {
    case Node::Device:
        closeDevice();
        return true;
    case Node::Identity:
        return closeIdentity();
    case Node::Axis:
        return closeAxis(levels_.back().key);
    case Node::Event:
        return intake_.add({numbers_[0], numbers_[1], numbers_[2], numbers_[3], numbers_[4]}, yaml_.line());
    default:
        return true;
    }
}

void LibinputReader::closeDevice() {
    deviceIsOpen_ = false;
    if (!hasName_) {
        intake_.dropDevice();
        complain("cut short: a device without a name");
    } else if (!hasEvents_) {
        complain("cut short: a device without events");
    }
}

bool LibinputReader::closeIdentity() {
    evdev::DeviceDescription &device = intake_.description();
    const std::array fields{&device.bus, &device.vendor, &device.product, &device.version};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (!std::in_range<std::uint16_t>(numbers_.at(i))) {
            return complain("number out of range");
        }
        *fields.at(i) = static_cast<std::uint16_t>(numbers_.at(i));
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
        if (!std::in_range<std::int32_t>(numbers_.at(i))) {
            return complain("number out of range");
        }
        *fields.at(i) = static_cast<std::int32_t>(numbers_.at(i));
    }
    if (*code <= evdev::kAbsMax) {
        intake_.description().axes[static_cast<std::uint16_t>(*code)] = axis;
    }
    return true;
}

void LibinputReader::finish(YamlStream::Kind last) {
    if (deviceIsOpen_ && !hasName_) {
        intake_.dropDevice();
    }
    if (last == YamlStream::Kind::Broken && !yaml_.brokeAtEnd()) {
        complain(std::string("not YAML (") + yaml_.problem() + ")");
    } else if (last == YamlStream::Kind::Broken ||
               (last == YamlStream::Kind::End && yaml_.endsWithinLine())) {
        intake_.complain("cut short", yaml_.lastLine());
    } else if (last == YamlStream::Kind::End && intake_.hasDevice() &&
               std::cmp_less(intake_.deviceCount(), announcedDevices_)) {
        intake_.complain("cut short: devices are missing", yaml_.lastLine());
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
