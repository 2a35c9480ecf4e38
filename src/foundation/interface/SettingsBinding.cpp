#include "foundation/interface/SettingsBinding.h"

#include "foundation/UserDefaults.h"

namespace barquell {

SettingsBinding::SettingsBinding(QObject &object, QString key, Show show)
    : QObject(&object), _key(std::move(key)), _show(std::move(show)), _defaults(&UserDefaults::standard()) {
    _defaults->addObserver(*this, _key, {});
    observeValueForKeyPath(_key, _defaults, _defaults->valueForKeyPath(_key), {});
}

SettingsBinding::~SettingsBinding() {
    if (_defaults) {
        _defaults->removeObserver(*this, _key);
    }
}

void SettingsBinding::write(const QVariant &value) {
    if (!_showing && _defaults) {
        _defaults->setValue(value, _key);
    }
}

void SettingsBinding::observeValueForKeyPath(const QString & /*keyPath*/, Observable * /*object*/,
                                             const QVariant &newValue, const ObservingContext & /*context*/) {
    const bool outer = std::exchange(_showing, true);
    _show(newValue);
    _showing = outer;
}

} // namespace barquell
