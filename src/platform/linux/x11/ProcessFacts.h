#pragma once

#include <QString>
#include <QStringList>

namespace barquell {

/// What the kernel's process files say of the application that a process is. Whatever cannot be read says
/// nothing. Ids are those of desktop entries, likeliest first; none of them needs to be installed.
class ProcessFacts {
public:
    /// A process id of 0 is no process.
    ProcessFacts(qint64 processId, const QString &processes);

    /// It runs the file that this process runs.
    bool isThisProgram() const;

    /// As flatpak or snap confines it.
    QStringList sandboxIds() const;

    /// As a launcher started it: the hints in its environment that are meant for itself.
    QStringList launchedIds() const;

private:
    QByteArray read(const char *name) const;
    QString flatpakId() const;
    QStringList snapIds() const;

    const qint64 _processId;
    const QString _folder; // empty where there is no process
};

} // namespace barquell
