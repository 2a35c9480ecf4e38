#pragma once

#include "platform/Applications.h"
#include "platform/Platform.h"

#include <QIcon>
#include <QMap>
#include <QPixmap>

namespace barquell::test {

/// Applications that a test installs, at "/apps/IDENTIFIER.app".
class FakeApplications final : public Applications {
public:
    FakeApplications() = default;
    ~FakeApplications() override {
        Platform here = platform();
        here.applications = nullptr;
        installPlatform(here);
    }
    Q_DISABLE_COPY_MOVE(FakeApplications)

    /// Adds it to the place that is installed.
    void install() {
        Platform here = platform();
        here.applications = this;
        installPlatform(here);
    }

    void add(const char *identifier, const char *displayName, const char *ownName = "") {
        _names[QString::fromLatin1(identifier)] = {QString::fromLatin1(displayName),
                                                   QString::fromLatin1(ownName)};
    }
    void addAt(const QString &path, const char *identifier) {
        _elsewhere[path] = QString::fromLatin1(identifier);
    }
    void remove(const char *identifier) { _names.remove(QString::fromLatin1(identifier)); }

    static QString pathOf(const QString &identifier) {
        return QStringLiteral("/apps/%1.app").arg(identifier);
    }

    QString pathOfApplication(const QString &bundleIdentifier) const override {
        ++lookUps;
        return _names.contains(bundleIdentifier) ? pathOf(bundleIdentifier) : QString();
    }
    QString bundleIdentifier(const QString &path) const override {
        for (auto app = _names.cbegin(); app != _names.cend(); ++app) {
            if (pathOf(app.key()) == path) {
                return app.key();
            }
        }
        return _elsewhere.value(path);
    }
    QString displayName(const QString &path) const override {
        return _names.value(bundleIdentifier(path)).displayed;
    }
    QString ownName(const QString &path) const override { return _names.value(bundleIdentifier(path)).own; }
    QIcon icon(const QString & /*path*/) const override { // some desktops have one for whatever it is
        QPixmap square(32, 32);
        square.fill(Qt::darkCyan);
        return square;
    }
    QString folder() const override { return QStringLiteral("/apps"); }
    QString fileType() const override { return QStringLiteral("app"); }

    mutable int lookUps = 0;

private:
    struct Names {
        QString displayed;
        QString own;
    };
    QMap<QString, Names> _names;
    QMap<QString, QString> _elsewhere; ///< identifiers by path
};

} // namespace barquell::test
