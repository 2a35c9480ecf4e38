#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <cstdio>

namespace barquell::test {

/// A folder of its own for a settings file.
class SettingsFolder {
public:
    QString path(const QString &name = QStringLiteral("settings.json")) const {
        return _folder.filePath(name);
    }

    /// In place, as some editors do it.
    void put(const QByteArray &bytes) const {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write %s", qUtf8Printable(path()));
        }
    }

    /// By exchange, as other editors do it.
    void exchange(const QByteArray &bytes) const {
        QFile file(path(QStringLiteral("edited")));
        const bool written =
            file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
        if (!written || std::rename(qPrintable(file.fileName()), qPrintable(path())) != 0) {
            qFatal("cannot exchange %s", qUtf8Printable(path()));
        }
    }

    QByteArray bytes(const QString &name = QStringLiteral("settings.json")) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// The names of what was set aside.
    QStringList setAside() const {
        return QDir(_folder.path())
            .entryList({QStringLiteral("settings.json.broken-*")},
                       QDir::AllEntries | QDir::System | QDir::Hidden);
    }

private:
    QTemporaryDir _folder;
};

} // namespace barquell::test
