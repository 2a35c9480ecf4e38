#pragma once

#include <QString>

#include <optional>
#include <set>
#include <vector>

namespace barquell {

/// The size of a real bar, in points.
inline constexpr double kBarWidth = 1085;
inline constexpr double kBarHeight = 30;

/// One thing on the bar that a finger can use.
struct BarControl {
    enum class Kind { Key, Slider };

    Kind kind = Kind::Key;
    QString name; ///< as a key of the localized strings
    double left = 0;
    double width = 0;

    double right() const { return left + width; }
};

/// What stands on the bar, from left to right, without overlap.
const std::vector<BarControl> &barControls();

/// What has become of the touches that passed: keys light while a finger is on them, and a slider follows the
/// one finger that took hold of it. Positions are points from the bar's left end.
class BarControls {
public:
    BarControls();

    void fingerDown(int finger, double x);
    void fingerMoved(int finger, double x);
    void fingerUp(int finger);

    /// By the control's place in barControls().
    bool isLit(std::size_t control) const;
    double value(std::size_t slider) const { return _values.at(slider); } ///< 0 to 1

private:
    struct Hold {
        int finger = 0;
        std::size_t control = 0;

        auto operator<=>(const Hold &) const = default; // NOLINT(modernize-use-nullptr): no zero of ours
    };

    void slide(std::size_t control, double x);
    std::optional<Hold> holdOf(int finger) const;

    std::set<Hold> _holds;
    std::vector<double> _values;
};

} // namespace barquell
