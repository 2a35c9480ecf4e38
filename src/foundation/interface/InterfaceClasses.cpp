#include "foundation/interface/InterfaceClasses.h"

#include <QHash>
#include <QWidget>

namespace barquell {

namespace {

QHash<QString, InterfaceClasses::ObjectMaker> &objectMakers() {
    static QHash<QString, InterfaceClasses::ObjectMaker> makers;
    return makers;
}

QHash<QString, InterfaceClasses::WidgetMaker> &widgetMakers() {
    static QHash<QString, InterfaceClasses::WidgetMaker> makers;
    return makers;
}

} // namespace

void InterfaceClasses::addObject(const QString &name, const ObjectMaker &make) {
    objectMakers().insert(name, make);
}

void InterfaceClasses::addWidget(const QString &name, const WidgetMaker &make) {
    widgetMakers().insert(name, make);
}

std::unique_ptr<QObject> InterfaceClasses::makeObject(const QString &name) {
    const ObjectMaker make = objectMakers().value(name);
    return make ? make() : nullptr;
}

std::unique_ptr<QWidget> InterfaceClasses::makeWidget(const QString &name, QWidget *parent) {
    const WidgetMaker make = widgetMakers().value(name);
    return make ? make(parent) : nullptr;
}

} // namespace barquell
