#include "foundation/interface/Wiring.h"

#include <QObject>

namespace barquell {

Wiring::Wiring(QObject *owner, const std::vector<QObject *> &objects) : _owner(owner) {
    for (QObject *object : objects) {
        if (!object->objectName().isEmpty()) {
            _objects.insert(object->objectName(), object);
        }
    }
}

QObject *Wiring::objectNamed(const QString &name) const {
    return name == QLatin1String("owner") ? _owner : _objects.value(name);
}

void Wiring::perform() const {
    for (const auto &step : _steps) {
        step();
    }
}

void Wiring::complain(const QString &what) {
    if (_complaint.isEmpty()) {
        _complaint = what;
    }
}

} // namespace barquell
