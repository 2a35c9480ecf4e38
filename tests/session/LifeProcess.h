#pragma once

#include "support/Wait.h"

#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

#include <csignal>

namespace barquell::test {

/// A whole program of the session, in a process of its own, and what it has said so far.
class LifeProcess {
public:
    explicit LifeProcess(const QStringList &arguments = {}, const QStringList &environment = {}) {
        _process.setEnvironment(QProcess::systemEnvironment() + environment);
        _process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        _process.start(QStringLiteral(BARQUELL_LIFE_PROCESS), arguments);
        EXPECT_TRUE(_process.waitForStarted());
    }
    ~LifeProcess() {
        _process.kill();
        _process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(LifeProcess)

    bool says(const QString &line, qsizetype times = 1) {
        return waitFor([&] {
            read();
            return lines.count(line) >= times;
        });
    }

    bool isLaunched(int copies = 1) { return says(QStringLiteral("launched, copies %1").arg(copies)); }

    void signal(int number) const { ::kill(static_cast<pid_t>(processId()), number); }

    qint64 processId() const { return _process.processId(); }

    /// Waits for the end; -1 if it did not end by itself.
    int exitCode() {
        const bool ended = waitFor([this] { return _process.state() == QProcess::NotRunning; });
        read();
        return ended && _process.exitStatus() == QProcess::NormalExit ? _process.exitCode() : -1;
    }

    QStringList lines;

private:
    void read() {
        while (_process.canReadLine()) {
            lines.append(QString::fromUtf8(_process.readLine().trimmed()));
        }
    }

    QProcess _process;
};

} // namespace barquell::test
