#pragma once

#include "platform/linux/protocol/Protocol.h"

#include <QString>

#include <optional>

namespace barquell {

/// Who has the server's tap, seen from a program whose process is `ours` while it runs.
class TapHolder {
public:
    TapHolder(const protocol::ServerMessage &welcome, std::optional<qint64> ours)
        : _process(welcome.holder), _ours(ours) {}

    bool isNobody() const { return _process == protocol::kNobody; }
    bool isOurs() const { return _ours && _process == *_ours; }

    /// For a person: "Barquell", "nobody", "process 77", "a process of another user".
    QString name() const;

    /// What gives the tap to Barquell where somebody else has it.
    QString mend() const;

private:
    qint64 _process;
    std::optional<qint64> _ours;
};

} // namespace barquell
