#pragma once

namespace barquell {

/// What can be known of the program from outside of it. The running copy is not asked: what it decides it
/// says in its log, and whether it is trusted only itself can know.
struct Findings {
    int copies = 0;             ///< that run
    bool enabled = false;       ///< the settings want blocking
    bool launchAtStart = false; ///< the settings want the program to start at login
};

Findings lookAround();

} // namespace barquell
