#include "recording/CleanText.h"
#include "recording/Intake.h"
#include "recording/LineReader.h"
#include "recording/Number.h"
#include "recording/Readers.h"

#include <array>
#include <utility>

namespace barquell::recording {

namespace {

/// The fields of one line, taken from the front.
class Fields {
public:
    explicit Fields(std::string_view text) : _text(text) {}

    bool number(std::int64_t &value, int base) {
        skipBlanks();
        const auto number = takeNumber(_text, base);
        value = number.value_or(0);
        return number.has_value();
    }

    bool literal(char c) {
        const bool found = _text.starts_with(c);
        _text.remove_prefix(found ? 1 : 0);
        return found;
    }

    bool isNegative() {
        skipBlanks();
        return _text.starts_with('-');
    }

    bool atEnd() {
        skipBlanks();
        return _text.empty() || _text.front() == '#';
    }

private:
    void skipBlanks() { _text.remove_prefix(std::min(_text.find_first_not_of(" \t"), _text.size())); }

    std::string_view _text;
};

class EvemuReader {
public:
    Recording read(const ByteSource &source);

private:
    bool takeLine(std::string_view line);
    bool takeHeaderLine(char kind, std::string_view text);
    bool takeName(std::string_view text);
    bool takeIdentity(Fields fields);
    bool takeProperties(Fields fields);
    bool takeCodes(Fields fields);
    bool takeAxis(Fields fields);
    bool takeEvent(Fields fields);
    bool damaged() { return _intake.complain("damaged", _line); }
    void checkDescription();

    Intake _intake;
    std::size_t _line = 0;
    bool _hasIdentity = false;
    std::bitset<evdev::kAbsMax + 1> _describedAxes;
    std::size_t _propertyBytes = 0;                          ///< how many the lines so far have described
    std::array<std::size_t, evdev::kEvMax + 1> _codeBytes{}; ///< the same by event type
};

/// Calls back with the number of each bit that is set in the line's eight bytes.
template <typename Callback>
bool forEachBit(Fields &fields, std::size_t firstByte, Callback callback) {
    for (std::size_t byte = firstByte; byte < firstByte + 8; ++byte) {
        std::int64_t bits = 0;
        if (!fields.number(bits, 16) || bits < 0 || bits > 0xFF) {
            return false;
        }
        for (std::size_t bit = 0; bit < 8; ++bit) {
            if (((bits >> bit) & 1) != 0) {
                callback(byte * 8 + bit);
            }
        }
    }
    return fields.atEnd();
}

Recording EvemuReader::read(const ByteSource &source) {
    LineReader lines(source);
    std::string_view line;
    for (bool going = true; going;) {
        const LineReader::Found found = lines.next(line);
        ++_line;
        switch (found) {
        case LineReader::Found::Line:
            going = takeLine(line);
            break;
        case LineReader::Found::CutLine:
            // Its last number may have lost digits. A comment has nothing to lose: the recorder itself ends
            // with an open one when it stops by its timeout.
            going = line.starts_with('#') || _intake.complain("cut short", _line);
            break;
        case LineReader::Found::LongLine:
            going = damaged();
            break;
        case LineReader::Found::Nothing:
            checkDescription();
            return _intake.take();
        }
    }
    return _intake.take();
}

bool EvemuReader::takeLine(std::string_view line) {
    if (line.starts_with("E:") && _intake.hasDevice()) {
        return takeEvent(Fields(line.substr(2)));
    }
    if (line.starts_with('#') || Fields(line).atEnd()) {
        return true;
    }
    if (line.size() < 2 || line[1] != ':') {
        return damaged();
    }
    return takeHeaderLine(line[0], line.substr(2));
}

bool EvemuReader::takeHeaderLine(char kind, std::string_view text) {
    if (kind == 'N') {
        return takeName(text);
    }
    if (!_intake.hasDevice()) {
        return _intake.complain("no device found: its name is missing", _line);
    }
    switch (kind) {
    case 'I':
        return takeIdentity(Fields(text));
    case 'P':
        return takeProperties(Fields(text));
    case 'B':
        return takeCodes(Fields(text));
    case 'A':
        return takeAxis(Fields(text));
    case 'L':
    case 'S':
        return true; // what lights and switches were at the start
    default:
        return damaged();
    }
}

bool EvemuReader::takeName(std::string_view text) {
    if (_intake.hasDevice()) {
        return _intake.complain("a second device", _line);
    }
    if (!_intake.beginDevice(_line)) {
        return false;
    }
    text.remove_prefix(text.starts_with(' ') ? 1 : 0);
    _intake.description().name = cleanName(text);
    return true;
}

bool EvemuReader::takeIdentity(Fields fields) {
    evdev::DeviceDescription &device = _intake.description();
    for (std::uint16_t *field : {&device.bus, &device.vendor, &device.product, &device.version}) {
        std::int64_t number = 0;
        if (!fields.number(number, 16) || !std::in_range<std::uint16_t>(number)) {
            return damaged();
        }
        *field = static_cast<std::uint16_t>(number);
    }
    _hasIdentity = true;
    return fields.atEnd() || damaged();
}

bool EvemuReader::takeProperties(Fields fields) {
    auto &properties = _intake.description().properties;
    const bool whole = forEachBit(fields, _propertyBytes, [&](std::size_t bit) {
        if (bit < properties.size()) {
            properties.set(bit);
        }
    });
    _propertyBytes += 8;
    return whole || damaged();
}

bool EvemuReader::takeCodes(Fields fields) {
    std::int64_t type = 0;
    if (!fields.number(type, 16) || type < 0 || type > evdev::kEvMax) {
        return damaged();
    }
    const auto index = static_cast<std::size_t>(type);
    const bool whole =
        forEachBit(fields, _codeBytes.at(index), [&](std::size_t bit) { _intake.declareCode(index, bit); });
    _codeBytes.at(index) += 8;
    return whole || damaged();
}

bool EvemuReader::takeAxis(Fields fields) {
    std::int64_t code = 0;
    if (!fields.number(code, 16) || !std::in_range<std::uint16_t>(code)) {
        return damaged();
    }
    evdev::AxisInfo axis;
    for (std::int32_t *field : {&axis.minimum, &axis.maximum, &axis.fuzz, &axis.flat, &axis.resolution}) {
        if (field == &axis.resolution && fields.atEnd()) {
            break; // the first versions of the format have none
        }
        std::int64_t number = 0;
        if (!fields.number(number, 10) || !std::in_range<std::int32_t>(number)) {
            return damaged();
        }
        *field = static_cast<std::int32_t>(number);
    }
    if (code <= evdev::kAbsMax) {
        _intake.description().axes[static_cast<std::uint16_t>(code)] = axis;
        _describedAxes.set(static_cast<std::size_t>(code));
    }
    return fields.atEnd() || damaged();
}

bool EvemuReader::takeEvent(Fields fields) {
    RawEvent event;
    const bool negative = fields.isNegative(); // "-0" as well, which no number tells
    const bool whole = fields.number(event.seconds, 10) && fields.literal('.') &&
                       fields.number(event.microseconds, 10) && fields.number(event.type, 16) &&
                       fields.number(event.code, 16) && fields.number(event.value, 10) && fields.atEnd();
    if (!whole) {
        return damaged();
    }
    if (negative) {
        event.seconds = -1;
    }
    return _intake.add(event, _line);
}

/// A file that ends within its header has lines that are all whole, but not all lines.
void EvemuReader::checkDescription() {
    if (!_intake.hasDevice()) {
        return;
    }
    if (!_hasIdentity) {
        _intake.complain("cut short: the device's identity is missing");
    }
    for (const auto &[code, axis] : _intake.description().axes) {
        if (!_describedAxes.test(code)) {
            _intake.complain("cut short: an axis' range is missing");
        }
    }
}

} // namespace

Recording readEvemu(const ByteSource &source) {
    return EvemuReader().read(source);
}

Recording readEvemu(std::string_view text) {
    return readEvemu(textSource(text));
}

} // namespace barquell::recording
