#pragma once

#include "platform/Applications.h"

#include <QIcon>
#include <QMap>

namespace barquell {

/// The applications that a script has installed.
class ScriptedApplications final : public Applications {
public:
    struct Application {
        QString bundleIdentifier;
        QString displayName;
        QString ownName;
        QIcon icon;
    };

    QString pathOfApplication(const QString &bundleIdentifier) const override {
        for (auto each = installed.cbegin(); each != installed.cend(); ++each) {
            if (each->bundleIdentifier == bundleIdentifier && !bundleIdentifier.isEmpty()) {
                return each.key();
            }
        }
        return {};
    }
    QString bundleIdentifier(const QString &path) const override {
        return installed.value(path).bundleIdentifier;
    }
    QString displayName(const QString &path) const override { return installed.value(path).displayName; }
    QString ownName(const QString &path) const override { return installed.value(path).ownName; }
    QIcon icon(const QString &path) const override { return installed.value(path).icon; }
    QString folder() const override { return where; }
    QString fileType() const override { return QStringLiteral("scripted"); }

    QMap<QString, Application> installed; ///< by path
    QString where = QStringLiteral("/applications");
};

} // namespace barquell
