#pragma once

#include "platform/Applications.h"

namespace barquell {

/// Application bundles.
class MacApplications final : public Applications {
public:
    QString pathOfApplication(const QString &bundleIdentifier) const override;
    QString bundleIdentifier(const QString &path) const override;
    QString displayName(const QString &path) const override;
    QString ownName(const QString &path) const override;
    QIcon icon(const QString &path) const override;
    QString folder() const override;
    QString fileType() const override;
};

} // namespace barquell
