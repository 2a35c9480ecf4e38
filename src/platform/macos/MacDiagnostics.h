#pragma once

#include "platform/Diagnostics.h"

namespace barquell {

class MacDiagnostics final : public Diagnostics {
public:
    explicit MacDiagnostics(const QString &domain) : _domain(domain) {}

    QString settingsFile() const override;
    QStringList logCommand() const override;

private:
    QString _domain;
};

} // namespace barquell
