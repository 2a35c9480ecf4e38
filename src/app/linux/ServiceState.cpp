#include "app/linux/ServiceState.h"

#include <QDir>

#include <algorithm>
#include <array>

namespace barquell {

namespace {

// Where units lie, systemd.unit(5).
constexpr std::array kFolders{"etc/systemd/system", "run/systemd/system", "usr/local/lib/systemd/system",
                              "usr/lib/systemd/system", "lib/systemd/system"};

} // namespace

std::optional<bool> isServiceInstalled(const QString &root) {
    const QDir top(root);
    if (!top.exists(QStringLiteral("run/systemd/system"))) { // sd_booted(3)
        return std::nullopt;
    }
    const auto has = [&top](const char *unit) {
        return std::any_of(kFolders.begin(), kFolders.end(), [&](const char *folder) {
            return top.exists(QString::fromLatin1(folder) + QLatin1Char('/') + QLatin1String(unit));
        });
    };
    return has("barquell-tapd.socket") && has("barquell-tapd.service");
}

} // namespace barquell
