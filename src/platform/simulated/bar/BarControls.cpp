#include "platform/simulated/bar/BarControls.h"

#include <algorithm>

namespace barquell {

namespace {

constexpr double kGap = 8;
constexpr double kKeyWidth = 64;
constexpr double kSliderWidth = 290;
constexpr double kMiddle = 0.5; // where sliders stand at first

std::vector<BarControl> laidOut() {
    std::vector<BarControl> controls;
    double left = 0;
    const auto add = [&](BarControl::Kind kind, const char *name) {
        const double width = kind == BarControl::Kind::Key ? kKeyWidth : kSliderWidth;
        controls.push_back({kind, QString::fromLatin1(name), left, width});
        left += width + kGap;
    };
    add(BarControl::Kind::Key, QT_TRANSLATE_NOOP("Bundle", "Esc"));
    left += kKeyWidth; // as far from the rest as on the real one
    add(BarControl::Kind::Slider, QT_TRANSLATE_NOOP("Bundle", "Brightness"));
    add(BarControl::Kind::Key, QT_TRANSLATE_NOOP("Bundle", "Previous"));
    add(BarControl::Kind::Key, QT_TRANSLATE_NOOP("Bundle", "Play"));
    add(BarControl::Kind::Key, QT_TRANSLATE_NOOP("Bundle", "Next"));
    add(BarControl::Kind::Key, QT_TRANSLATE_NOOP("Bundle", "Mute"));
    add(BarControl::Kind::Slider, QT_TRANSLATE_NOOP("Bundle", "Volume"));
    add(BarControl::Kind::Key, QT_TRANSLATE_NOOP("Bundle", "Lock"));
    return controls;
}

std::optional<std::size_t> controlAt(double x) {
    const auto &controls = barControls();
    const auto found = std::find_if(controls.begin(), controls.end(), [x](const BarControl &each) {
        return x >= each.left && x < each.right();
    });
    if (found == controls.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - controls.begin());
}

} // namespace

const std::vector<BarControl> &barControls() {
    static const std::vector<BarControl> controls = laidOut();
    return controls;
}

BarControls::BarControls() : _values(barControls().size(), kMiddle) {}

void BarControls::fingerDown(int finger, double x) {
    if (const auto control = controlAt(x)) {
        _holds.insert({finger, *control});
        slide(*control, x);
    }
}

void BarControls::fingerMoved(int finger, double x) {
    if (const auto hold = holdOf(finger)) {
        slide(hold->control, x);
    }
}

void BarControls::fingerUp(int finger) {
    std::erase_if(_holds, [finger](const Hold &hold) { return hold.finger == finger; });
}

bool BarControls::isLit(std::size_t control) const {
    return std::any_of(_holds.begin(), _holds.end(),
                       [control](const Hold &hold) { return hold.control == control; });
}

void BarControls::slide(std::size_t control, double x) {
    const BarControl &slider = barControls().at(control);
    if (slider.kind == BarControl::Kind::Slider) {
        _values.at(control) = std::clamp((x - slider.left) / slider.width, 0.0, 1.0);
    }
}

std::optional<BarControls::Hold> BarControls::holdOf(int finger) const {
    const auto found = std::find_if(_holds.begin(), _holds.end(),
                                    [finger](const Hold &hold) { return hold.finger == finger; });
    return found == _holds.end() ? std::nullopt : std::optional(*found);
}

} // namespace barquell
