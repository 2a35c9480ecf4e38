#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace barquell::test {

/// A real bus of the test's own, at the place where the session's (and the system's) is looked for. Starts
/// when it is told to.
class PrivateBus {
public:
    enum class Beginning { Running, Absent };

    explicit PrivateBus(Beginning beginning = Beginning::Running) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", address().toUtf8());
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address().toUtf8());
        QFile configuration(configurationPath());
        EXPECT_TRUE(configuration.open(QIODevice::WriteOnly));
        configuration.write(
            "<busconfig><type>session</type><listen>" + address().toUtf8() +
            "</listen><policy context='default'><allow send_destination='*' eavesdrop='true'/>"
            "<allow eavesdrop='true'/><allow own='*'/></policy><servicedir>" +
            _folder.path().toUtf8() + "</servicedir></busconfig>");
        configuration.close();
        if (beginning == Beginning::Running) {
            start();
        }
    }
    ~PrivateBus() { kill(); }
    Q_DISABLE_COPY_MOVE(PrivateBus)

    QString address() const { return QStringLiteral("unix:path=") + socket(); }

    void start() {
        _daemon.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                       QStringLiteral("--config-file=") + configurationPath()});
        ASSERT_TRUE(_daemon.waitForReadyRead()) << "the bus does not start";
        _daemon.readAll();
    }

    /// Lets the bus start a program, as its service file says. Before the bus starts.
    void addService(const QByteArray &text) const {
        QFile file(_folder.filePath(QStringLiteral("com.vexolith.barquell.service")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }

    /// What the programs that the bus started have said since the last call.
    QStringList said() {
        return QString::fromUtf8(_daemon.readAllStandardOutput())
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    /// As after a crash; its socket stays behind unless it is taken away.
    void kill() {
        _daemon.kill();
        _daemon.waitForFinished();
        QFile::remove(socket());
    }

private:
    QString socket() const { return _folder.filePath(QStringLiteral("bus")); }
    QString configurationPath() const { return _folder.filePath(QStringLiteral("bus.conf")); }

    QTemporaryDir _folder;
    QProcess _daemon;
};

/// Another program on the bus.
class OtherProgram {
public:
    explicit OtherProgram(const PrivateBus &bus)
        : _name(QStringLiteral("other-%1").arg(reinterpret_cast<quintptr>(this))),
          _connection(QDBusConnection::connectToBus(bus.address(), _name)) {}
    ~OtherProgram() { QDBusConnection::disconnectFromBus(_name); }
    Q_DISABLE_COPY_MOVE(OtherProgram)

    QDBusConnection &connection() { return _connection; }

    void emitSignal(const QString &path, const QString &interface, const QString &member,
                    const QVariantList &arguments = {}) {
        QDBusMessage signal = QDBusMessage::createSignal(path, interface, member);
        signal.setArguments(arguments);
        EXPECT_TRUE(_connection.send(signal));
    }

private:
    const QString _name;
    QDBusConnection _connection;
};

} // namespace barquell::test
