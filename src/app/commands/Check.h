#pragma once

#include <QList>
#include <QString>

namespace barquell {

/// One thing that the program needs.
struct Check {
    QString what;
    bool good;
    QString mend; ///< what to do where it is not good
};

/// All that the program needs of the place where it lives.
QList<Check> checkEverything();

} // namespace barquell
