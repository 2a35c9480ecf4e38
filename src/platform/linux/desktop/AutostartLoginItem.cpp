#include "platform/linux/desktop/AutostartLoginItem.h"

#include "platform/linux/FileAccess.h"
#include "platform/linux/desktop/DesktopGroup.h"
#include "platform/linux/desktop/XdgFolders.h"

#include <QDir>
#include <QFile>

namespace barquell {

namespace {

constexpr qint64 kLargestFile = 1 << 16;

/// The helper's entries in a folder, however its name is written.
QStringList entriesIn(const QString &folder, const QString &helperIdentifier) {
    const QString name = helperIdentifier + QStringLiteral(".desktop");
    QStringList paths;
    for (const QString &file : QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System)) {
        if (file.compare(name, Qt::CaseInsensitive) == 0) {
            paths.append(folder + QLatin1Char('/') + file);
        }
    }
    return paths;
}

LoginItemState stateInFile(const QString &path) {
    const FileContent file = readRegularFile(path, kLargestFile);
    const DesktopGroup group(file.bytes);
    if (!group.contains("Exec") || group.isTrue("Hidden")) {
        return {LoginItemState::Kind::Off, std::nullopt};
    }
    const bool switchedOff = group.text("X-GNOME-Autostart-enabled") == QLatin1String("false");
    return {LoginItemState::Kind::Found, !switchedOff};
}

/// An argument as the key Exec quotes it.
QString quoted(QString argument) {
    for (const char *special : {"\\", "\"", "`", "$"}) {
        argument.replace(QLatin1String(special), QLatin1Char('\\') + QLatin1String(special));
    }
    return QLatin1Char('"') + argument.replace(QLatin1Char('%'), QStringLiteral("%%")) + QLatin1Char('"');
}

} // namespace

QStringList AutostartLoginItem::standardFolders() {
    return xdgConfigFolders(QStringLiteral("autostart"));
}

AutostartLoginItem::AutostartLoginItem(QString program, QStringList folders)
    : _program(std::move(program)), _folders(std::move(folders)) {}

bool AutostartLoginItem::setEnabled(const QString &helperIdentifier, bool enabled) {
    for (const QString &path : entriesIn(_folders.constFirst(), helperIdentifier)) {
        if ((!enabled || path != userFile(helperIdentifier)) && !QFile::remove(path)) {
            return false;
        }
    }
    if (enabled) {
        return write(helperIdentifier, "X-GNOME-Autostart-enabled=true\n");
    }
    // One that the system brings along can only be covered.
    return state(helperIdentifier).kind == LoginItemState::Kind::Off ||
           write(helperIdentifier, "Hidden=true\n");
}

LoginItemState AutostartLoginItem::state(const QString &helperIdentifier) const {
    for (const QString &folder : _folders) {
        const QStringList paths = entriesIn(folder, helperIdentifier);
        if (!paths.isEmpty()) {
            return stateInFile(paths.constFirst());
        }
    }
    return {LoginItemState::Kind::Off, std::nullopt};
}

QString AutostartLoginItem::userFile(const QString &helperIdentifier) const {
    return QStringLiteral("%1/%2.desktop").arg(_folders.constFirst(), helperIdentifier);
}

bool AutostartLoginItem::write(const QString &helperIdentifier, const QByteArray &line) const {
    const QString command = QStringLiteral("env FromLoginItem=1 ") + quoted(_program);
    const QByteArray text =
        "[Desktop Entry]\nType=Application\nName=Barquell\nIcon=com.vexolith.barquell\nExec=" +
        DesktopGroup::escaped(command) + "\n" + line;
    return makeFolder(_folders.constFirst()).isEmpty() &&
           replaceFile(userFile(helperIdentifier), text).isEmpty();
}

} // namespace barquell
