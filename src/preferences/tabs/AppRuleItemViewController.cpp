#include "preferences/tabs/AppRuleItemViewController.h"

#include "foundation/Bundle.h"
#include "foundation/interface/Image.h"
#include "platform/Applications.h"
#include "platform/Platform.h"
#include "process/Helpers.h"

namespace barquell {

namespace {

constexpr int kIconSize = 24;

QString nameOf(const QString &bundleIdentifier, const QString &path) {
    if (path.isEmpty()) {
        return bundleIdentifier;
    }
    const Applications &applications = *platform().applications;
    const QString shown = applications.displayName(path);
    const QString own = shown.isEmpty() ? applications.ownName(path) : shown;
    return own.isEmpty() ? bundleIdentifier : own;
}

} // namespace

std::unique_ptr<AppRuleItemViewController>
AppRuleItemViewController::newWithNBundleIdentifier(const std::optional<QString> &bundleIdentifier) {
    return std::unique_ptr<AppRuleItemViewController>(new AppRuleItemViewController(bundleIdentifier));
}

AppRuleItemViewController::AppRuleItemViewController(const std::optional<QString> &bundleIdentifier)
    : _isUnknown(!bundleIdentifier) {
    if (_isUnknown) {
        _name = QStringLiteral("???");
        return;
    }
    if (platform().applications) {
        _path = platform().applications->pathOfApplication(*bundleIdentifier);
    }
    _name = nameOf(*bundleIdentifier, _path);
}

QIcon AppRuleItemViewController::icon() const {
    if (_isUnknown) {
        return imageNamed(Bundle::mainBundleIdentifier());
    }
    return _path.isEmpty() ? QIcon() : platform().applications->icon(_path);
}

QWidget *AppRuleItemViewController::view() {
    loadOnce();
    return _view;
}

QLabel *AppRuleItemViewController::textField() {
    loadOnce();
    return _textField;
}

QLabel *AppRuleItemViewController::imageView() {
    loadOnce();
    return _imageView;
}

void AppRuleItemViewController::loadOnce() {
    if (std::exchange(_isLoaded, true)) {
        return;
    }
    Helpers::loadNibNamed(QStringLiteral("AppRuleView"), this, &_topLevelObjects);
    if (_textField) {
        _textField->setText(_name);
    }
    if (_imageView) {
        _imageView->setPixmap(icon().pixmap(QSize(kIconSize, kIconSize), _imageView->devicePixelRatioF()));
    }
}

} // namespace barquell
