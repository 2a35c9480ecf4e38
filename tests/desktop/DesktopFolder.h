#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace barquell::test {

/// A folder of desktop entries that is gone with its test.
class DesktopFolder {
public:
    QString path() const { return _folder.path(); }
    QString path(const QString &name) const { return _folder.filePath(name); }

    void write(const QString &name, const QByteArray &bytes) const {
        const QString file = path(name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size());
    }

    /// An application's entry with further lines.
    void writeApplication(const QString &name, const QByteArray &lines = {}) const {
        write(name, "[Desktop Entry]\nType=Application\nName=" + name.toUtf8() + "\n" + lines);
    }

private:
    QTemporaryDir _folder;
};

} // namespace barquell::test
