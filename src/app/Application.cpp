#include "app/Application.h"

#include "foundation/NotificationCenter.h"
#include "platform/Platform.h"
#include "process/AppHelpers.h"
#include "process/Helpers.h"
#include "process/Windows.h"

namespace barquell {

Application::~Application() {
    setDelegate(nullptr);
}

void Application::load() {
    NotificationCenter::defaultCenter().addObserver(
        *this, foregroundWindowNotification(), [this](const Notification &notification) {
            if (auto *window = qobject_cast<QWidget *>(notification.object)) {
                giveMenuTo(*window);
            }
        });
    const QString mainMenu = QStringLiteral("MainMenu");
    if (hasWindows() && Helpers::loadNibNamed(mainMenu, this, &_objects) && _delegate) {
        return;
    }
    auto delegate = std::make_shared<AppController>();
    setDelegate(delegate.get());
    _objects.push_back(std::move(delegate));
}

void Application::setDelegate(AppController *delegate) {
    _delegate = delegate;
    platform().appLifecycle->setDelegate(delegate);
}

void Application::giveMenuTo(QWidget &window) const {
    if (_mainMenu) {
        window.addActions(_mainMenu->actions());
    }
}

void Application::terminate(const QVariant & /*sender*/) {
    platform().appLifecycle->terminate();
}

} // namespace barquell
