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

} // namespace

Permission permissionOf(const GrantTrust &trust, GrantClient &grant) {
    return {.userName = userName(),
            .state =
                [&trust] {
                    const bool given = trust.isProcessTrusted();
                    return Permission::State{.given = given, .since = given ? since() : QDateTime()};
                },
            .request =
                [&grant](const Permission::Answer &answer) {
                    grant.request(
                        [answer](GrantOutcome outcome) { answer(outcome == GrantOutcome::Granted); });
                },
            .withdraw =
                [&grant](const Permission::Answer &answer) {
                    grant.withdraw(
                        [answer](GrantOutcome outcome) { answer(outcome == GrantOutcome::Withdrawn); });
                }};
}

} // namespace barquell
