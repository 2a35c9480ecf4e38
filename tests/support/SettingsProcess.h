#pragma once

#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

namespace barquell::test {

/// The helper process of the settings tests, at work on a settings file.
class SettingsProcess {
public:
    SettingsProcess(const QString &task, const QString &path, const QStringList &arguments = {}) {
        _process.start(QStringLiteral(BARQUELL_SETTINGS_PROCESS), QStringList{task, path} + arguments);
    }

    /// Waits until it has said that it is at work.
    bool isReady() { return readLine() == "ready"; }

    QByteArray readLine() {
        while (!_process.canReadLine() && _process.waitForReadyRead()) {
        }
        return _process.readLine().trimmed();
    }

    /// Waits for the end; -1 if it did not end by itself.
    int exitCode() {
        const bool ended = _process.state() == QProcess::NotRunning || _process.waitForFinished();
        return ended && _process.exitStatus() == QProcess::NormalExit ? _process.exitCode() : -1;
    }

    QProcess &process() { return _process; }

private:
    QProcess _process;
};

} // namespace barquell::test
