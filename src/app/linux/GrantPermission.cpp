#include "app/linux/GrantPermission.h"

#include <QDir>
#include <QFileInfo>

#include <pwd.h>
#include <unistd.h>

namespace barquell {

namespace {

QString userName() {
    const passwd *user = ::getpwuid(::getuid());
    return user ? QString::fromLocal8Bit(user->pw_name) : QString::number(::getuid());
}

/// A grant is written once, whole.
QDateTime since() {
    const QDir folder(QString::fromLocal8Bit(thisMachinesGrants().path().c_str()));
    return QFileInfo(folder.filePath(QString::number(::getuid()))).lastModified();
}

Permission::Outcome meaningOf(GrantOutcome outcome) {
    switch (outcome) {
    case GrantOutcome::Granted:
    case GrantOutcome::Withdrawn:
        return Permission::Outcome::Done;
    case GrantOutcome::Denied:
    case GrantOutcome::NoAnswer:
        return Permission::Outcome::Denied;
    case GrantOutcome::Unreachable:
    case GrantOutcome::Silent:
        return Permission::Outcome::Silent;
    case GrantOutcome::Busy:
    case GrantOutcome::Failed:
    case GrantOutcome::OtherVersion:
        break;
    }
    return Permission::Outcome::Failed;
}

GrantClient::Handler handlerFor(const Permission::Answer &answer) {
    return [answer](GrantOutcome outcome) { answer(meaningOf(outcome)); };
}

} // namespace

Permission permissionOf(const GrantTrust &trust, GrantClient &grant) {
    return {.userName = userName(),
            .state =
                [&trust] {
                    const bool given = trust.isProcessTrusted();
                    return Permission::State{.given = given, .since = given ? since() : QDateTime()};
                },
            .request = [&grant](const Permission::Answer &answer) { grant.request(handlerFor(answer)); },
            .withdraw = [&grant](const Permission::Answer &answer) { grant.withdraw(handlerFor(answer)); }};
}

} // namespace barquell
