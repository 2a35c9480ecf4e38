#include "foundation/interface/InterfaceClasses.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>

namespace barquell {

namespace {

QHash<QString, InterfaceClasses::ObjectMaker> &objectMakers() {
    static QHash<QString, InterfaceClasses::ObjectMaker> makers;
    return makers;
}

template <typename Class>
std::unique_ptr<QWidget> make(QWidget *parent) {
    return std::make_unique<Class>(parent);
}

/// Qt's own stand in it from the start.
QHash<QString, InterfaceClasses::WidgetMaker> &widgetMakers() {
    static QHash<QString, InterfaceClasses::WidgetMaker> makers{
        {QStringLiteral("QCheckBox"), make<QCheckBox>},
        {QStringLiteral("QComboBox"), make<QComboBox>},
        {QStringLiteral("QDoubleSpinBox"), make<QDoubleSpinBox>},
        {QStringLiteral("QLabel"), make<QLabel>},
        {QStringLiteral("QLineEdit"), make<QLineEdit>},
        {QStringLiteral("QMenu"), make<QMenu>},
        {QStringLiteral("QPushButton"), make<QPushButton>},
        {QStringLiteral("QRadioButton"), make<QRadioButton>},
        {QStringLiteral("QSlider"), make<QSlider>},
        {QStringLiteral("QSpinBox"), make<QSpinBox>},
        {QStringLiteral("QToolBar"), make<QToolBar>},
        {QStringLiteral("QToolButton"), make<QToolButton>},
        {QStringLiteral("QWidget"), make<QWidget>},
    };
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
