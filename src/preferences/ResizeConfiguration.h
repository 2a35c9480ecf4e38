#pragma once

namespace barquell {

/// How far the user may resize a tab, in points of its content. A dimension whose minimum is its maximum is
/// fixed; a maximum below 1 of one that is not means no bound.
struct ResizeConfiguration {
    double minimumWidth = 0;
    double minimumHeight = 0;
    double maximumWidth = 0;
    double maximumHeight = 0;

    bool isWidthResizable() const { return minimumWidth != maximumWidth; }
    bool isHeightResizable() const { return minimumHeight != maximumHeight; }
    bool isResizable() const { return isWidthResizable() || isHeightResizable(); }
};

} // namespace barquell
