#include "platform/linux/x11/ProcessFacts.h"

#include "platform/linux/FileAccess.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace barquell {

namespace {

constexpr qint64 kLargestFile = 8 << 20; // an environment can be megabytes
constexpr qsizetype kMost = 65536;       // and is not looked through further than this

QString variable(const QByteArray &environment, const QByteArray &name) {
    for (const QByteArray &entry : environment.split('\0')) {
        if (entry.startsWith(name + '=')) {
            return QString::fromUtf8(entry.mid(name.size() + 1));
        }
    }
    return {};
}

QString idOfFile(const QString &path) {
    const QString name = QFileInfo(path).fileName();
    const QString ending = QStringLiteral(".desktop");
    return name.endsWith(ending) ? name.chopped(ending.size()) : QString();
}

} // namespace

ProcessFacts::ProcessFacts(qint64 processId, const QString &processes)
    : _processId(processId),
      _folder(processId > 0 ? processes + QLatin1Char('/') + QString::number(processId) : QString()) {}

QByteArray ProcessFacts::read(const char *name) const {
    // Below "root" lies what the other process put there, a pipe for all we know.
    return _folder.isEmpty()
               ? QByteArray()
               : readRegularFile(_folder + QLatin1Char('/') + QString::fromLatin1(name), kLargestFile)
                     .bytes.left(kMost);
}

bool ProcessFacts::isThisProgram() const {
    const QString own = QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
    return !_folder.isEmpty() && !own.isEmpty() &&
           QFileInfo(_folder + QStringLiteral("/exe")).symLinkTarget() == own;
}

QStringList ProcessFacts::sandboxIds() const {
    const QString flatpak = flatpakId();
    return flatpak.isEmpty() ? snapIds() : QStringList{flatpak};
}

QString ProcessFacts::flatpakId() const {
    // flatpak-metadata(5): the sandbox's own description, "[Application]" with "name=ID".
    static const QRegularExpression name(
        QStringLiteral("^\\[Application\\]\\n(?:[^\\[\\n].*\\n|\\n)*?name=(\\S+)$"),
        QRegularExpression::MultilineOption);
    const auto described = name.match(QString::fromUtf8(read("root/.flatpak-info")));
    if (described.hasMatch()) {
        return described.captured(1);
    }
    static const QRegularExpression scope(QStringLiteral("/app-flatpak-([^/]+)-\\d+\\.scope$"),
                                          QRegularExpression::MultilineOption);
    return scope.match(QString::fromUtf8(read("cgroup")))
        .captured(1)
        .replace(QStringLiteral("\\x2d"), QStringLiteral("-"));
}

QStringList ProcessFacts::snapIds() const {
    // snapd names the scope "snap.NAME.APP", a dash or dot, a random id, ".scope", and the entries
    // "NAME_APP".
    static const QRegularExpression scope(
        QStringLiteral(
            "/snap\\.([^./]+)\\.([^./]+?)(?:[-.][0-9a-f]{8}(?:-[0-9a-f]{4}){3}-[0-9a-f]{12})?\\.scope$"),
        QRegularExpression::MultilineOption);
    const auto match = scope.match(QString::fromUtf8(read("cgroup")));
    QString snap = match.captured(1);
    QStringList ids;
    if (match.hasMatch()) {
        ids.append(snap + QLatin1Char('_') + match.captured(2));
    } else {
        snap = variable(read("environ"), "SNAP_INSTANCE_NAME");
    }
    if (!snap.isEmpty()) {
        ids.append(snap + QLatin1Char('_') + snap);
    }
    return ids;
}

QStringList ProcessFacts::launchedIds() const {
    const QByteArray environment = read("environ");
    QStringList ids;
    // GIO says for which process it meant its hint: children inherit it.
    if (variable(environment, "GIO_LAUNCHED_DESKTOP_FILE_PID") == QString::number(_processId)) {
        ids.append(idOfFile(variable(environment, "GIO_LAUNCHED_DESKTOP_FILE")));
    }
    ids.append(idOfFile(variable(environment, "BAMF_DESKTOP_FILE_HINT")));
    return ids;
}

} // namespace barquell
