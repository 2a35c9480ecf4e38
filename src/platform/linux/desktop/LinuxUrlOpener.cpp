#include "platform/linux/desktop/LinuxUrlOpener.h"

#include <QProcess>

namespace barquell {

namespace {

const QString kProjectPage = QStringLiteral("https://vexolith.com/barquell");

} // namespace

LinuxUrlOpener::LinuxUrlOpener(std::function<void()> showPrivacyPage, Launcher launch)
    : _showPrivacyPage(std::move(showPrivacyPage)), _launch(std::move(launch)) {}

bool LinuxUrlOpener::operator()(const QUrl &url) const {
    if (url.scheme() == QLatin1String("x-apple.systempreferences")) {
        if (_showPrivacyPage) {
            _showPrivacyPage();
        }
        return static_cast<bool>(_showPrivacyPage);
    }
    if (!url.isValid() || url.scheme().isEmpty()) { // "--option" is no address
        return false;
    }
    const bool isStore = url.scheme() == QLatin1String("macappstore");
    return _launch(QStringLiteral("xdg-open"), {isStore ? kProjectPage : url.toString(QUrl::FullyEncoded)});
}

bool LinuxUrlOpener::launchDetached(const QString &program, const QStringList &arguments) {
    return QProcess::startDetached(program, arguments);
}

} // namespace barquell
