#pragma once

#include "foundation/Log.h"

#include <QStringList>

namespace barquell::test {

/// Collects what is logged while it lives.
class LogCapture {
public:
    LogCapture() {
        setLogSink([this](const QString &line) { lines.append(line); });
    }
    ~LogCapture() { setLogSink({}); }
    Q_DISABLE_COPY_MOVE(LogCapture)

    QStringList lines;
};

} // namespace barquell::test
