#include "platform/linux/desktop/DesktopEntry.h"

#include "foundation/Log.h"
#include "platform/linux/FileAccess.h"
#include "platform/linux/desktop/DesktopGroup.h"

#include <QFileInfo>
#include <QSet>
#include <QStringDecoder>

#include <algorithm>

namespace barquell {

namespace {

constexpr qint64 kLargestFile = 1 << 20; // the largest seen, with names in 100 languages, have 60 KiB

/// The names under which a file may have the language of a locale, the nearest first.
QStringList languagesOf(const QString &locale) {
    const QString modifier =
        locale.contains(QLatin1Char('@')) ? locale.mid(locale.indexOf(QLatin1Char('@'))) : QString();
    const QString country = locale.section(QLatin1Char('@'), 0, 0).section(QLatin1Char('.'), 0, 0);
    const QString language = country.section(QLatin1Char('_'), 0, 0);
    QStringList names{country + modifier, country, language + modifier, language};
    names.removeDuplicates();
    names.removeAll(QString());
    return names;
}

bool isShownIn(const DesktopGroup &group, const QStringList &desktops) {
    const auto names = [&](const QByteArray &key) {
        const QStringList list = group.list(key);
        return std::any_of(desktops.begin(), desktops.end(),
                           [&](const QString &desktop) { return list.contains(desktop); });
    };
    const bool elsewhereOnly = group.contains("OnlyShowIn") && !names("OnlyShowIn");
    return !group.isTrue("NoDisplay") && !elsewhereOnly && !names("NotShowIn");
}

/// Entries are read again at each change of their folders; what is wrong with one is said once.
void complainOnce(const QString &path, const QString &what) {
    static QSet<QString> said;
    if (!said.contains(path)) {
        said.insert(path);
        log(QStringLiteral("The desktop entry \"%1\" %2").arg(cleanLine(path, kLongestQuote), what));
    }
}

bool isUtf8(const QByteArray &text) {
    QStringDecoder decode(QStringDecoder::Utf8);
    [[maybe_unused]] const QString decoded = decode(text);
    return !decode.hasError();
}

/// As the environment of this process has it.
QString localeOfMessages() {
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        QString locale = qEnvironmentVariable(variable);
        if (!locale.isEmpty()) {
            return locale;
        }
    }
    return {};
}

} // namespace

QString DesktopEntry::program() const {
    const bool quoted = exec.startsWith(QLatin1Char('"'));
    const QString command =
        quoted ? exec.section(QLatin1Char('"'), 1, 1) : exec.section(QLatin1Char(' '), 0, 0);
    return QFileInfo(command).fileName();
}

std::optional<DesktopEntry> parseDesktopEntry(const QByteArray &text, const QString &locale,
                                              const QStringList &desktops) {
    const DesktopGroup group(text);
    if (group.text("Type") != QLatin1String("Application")) {
        return std::nullopt;
    }
    const QStringList languages = languagesOf(locale);
    DesktopEntry entry;
    entry.name = group.localizedText("Name", languages);
    entry.icon = group.localizedText("Icon", languages);
    entry.exec = group.text("Exec");
    entry.startupWmClass = group.text("StartupWMClass");
    entry.isShown = isShownIn(group, desktops);
    entry.isHidden = group.isTrue("Hidden");
    return entry;
}

std::optional<DesktopEntry> readDesktopEntry(const QString &path, const QString &id) {
    const FileContent file = readRegularFile(path, kLargestFile);
    if (file.state == FileContent::State::Refused) {
        complainOnce(path, QStringLiteral("cannot be read: %1").arg(file.refusal));
    }
    if (file.state != FileContent::State::Read) {
        return std::nullopt;
    }
    const QStringList desktops =
        qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    std::optional<DesktopEntry> entry = parseDesktopEntry(file.bytes, localeOfMessages(), desktops);
    if (entry && !isUtf8(file.bytes)) {
        complainOnce(path, QStringLiteral("is not UTF-8; what cannot be read of it is left out"));
    }
    if (entry) {
        entry->id = id;
        entry->path = path;
    }
    return entry;
}

} // namespace barquell
