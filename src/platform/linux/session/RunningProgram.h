#pragma once

#include <QDBusConnection>
#include <QString>
#include <QVariantMap>

#include <optional>

class QDBusMessage;

namespace barquell {

/// The copy of the program that runs, as a command line speaks to it over the session bus. It is never
/// started by being spoken to. Main thread only.
class RunningProgram {
public:
    enum class Outcome {
        Done,
        NoBus,      ///< the session has no bus, so nobody can be asked
        NotRunning, ///< no copy is on the bus
        Silent,     ///< a copy runs and does not answer within 5 s
        Refused,    ///< a copy runs and does not know the call
    };

    RunningProgram();
    ~RunningProgram();
    Q_DISABLE_COPY_MOVE(RunningProgram)

    bool hasBus() const { return _connection.isConnected(); }

    /// The process that owns the program's name, if any does.
    std::optional<qint64> processId() const;

    /// As a launcher does that starts it again.
    Outcome show();

    /// Tells every copy to end; does not wait for their end.
    Outcome quit();

    /// What the running copy says of itself; filled where the outcome is Done.
    Outcome status(QVariantMap &status);

private:
    Outcome call(const QString &interface, const QString &member, const QVariantList &arguments,
                 QVariantList *results = nullptr);
    QDBusMessage askBus(const QString &member, const QVariantList &arguments = {}) const;
    bool isRunning() const;

    QDBusConnection _connection;
};

} // namespace barquell
