#include "app/commands/OtherCopies.h"

#include "platform/linux/session/RunningProgram.h"

namespace barquell {

namespace {

using Outcome = RunningProgram::Outcome;

QString complaint(Outcome outcome) {
    switch (outcome) {
    case Outcome::Done:
        return {};
    case Outcome::NoBus:
        return QStringLiteral("There is no session bus to reach the running copy by");
    case Outcome::NotRunning:
        return QStringLiteral("Barquell is not running");
    case Outcome::Silent:
        return QStringLiteral("The running copy does not answer");
    case Outcome::Refused:
        break;
    }
    return QStringLiteral("The running copy does not know how");
}

} // namespace

QString showRunningCopy() {
    return complaint(RunningProgram().show());
}

QString endRunningCopies() {
    return complaint(RunningProgram().quit());
}

} // namespace barquell
