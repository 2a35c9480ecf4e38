#include "app/linux/TapHolder.h"

namespace barquell {

QString TapHolder::name() const {
    if (isNobody()) {
        return QStringLiteral("nobody");
    }
    if (isOurs()) {
        return QStringLiteral("Barquell");
    }
    return _process == protocol::kAnotherUser ? QStringLiteral("a process of another user")
                                              : QStringLiteral("process %1").arg(_process);
}

QString TapHolder::mend() const {
    if (isNobody()) {
        return QStringLiteral("end Barquell and start it again");
    }
    return _process == protocol::kAnotherUser ? QStringLiteral("the other user has to end it")
                                              : QStringLiteral("end it: kill %1").arg(_process);
}

} // namespace barquell
