#include "foundation/Values.h"
#include "foundation/interface/SettingsBinding.h"
#include "foundation/interface/Wiring.h"

#include <QAbstractSlider>
#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

#include <algorithm>
#include <limits>

namespace barquell {

namespace {

/// A child of the control, which owns it. Shown is first: a control in a file may start with any value.
SettingsBinding *bind(QObject &control, const QString &key, SettingsBinding::Show show) {
    return std::make_unique<SettingsBinding>(control, key, std::move(show)).release();
}

int asInt(const QVariant &value) {
    constexpr qint64 least = std::numeric_limits<int>::min();
    constexpr qint64 most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(integerValue(value), least, most));
}

double asReal(const QVariant &value) {
    return value.typeId() == QMetaType::Double ? value.toDouble() : static_cast<double>(integerValue(value));
}

/// Settings compare as whoever reads them asks for them: by number, by truth, else by text.
bool isChoice(const QVariant &value, const QVariant &choice) {
    if (isNullObject(value) || !value.isValid()) {
        return false;
    }
    switch (choice.typeId()) {
    case QMetaType::Int:
        return integerValue(value) == choice.toLongLong();
    case QMetaType::Bool:
        return boolValue(value) == choice.toBool();
    default:
        return value.typeId() == QMetaType::QString && value.toString() == choice.toString();
    }
}

/// Tab comes to the chosen one of a group, and the arrows go on from there.
void takeTab(QRadioButton &radio) {
    for (QRadioButton *each :
         radio.parentWidget()->findChildren<QRadioButton *>(QString(), Qt::FindDirectChildrenOnly)) {
        each->setFocusPolicy(each == &radio ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void showChosen(QRadioButton &radio, bool chosen) {
    const bool exclusive = radio.autoExclusive();
    radio.setAutoExclusive(false); // else the chosen one could not be taken back
    radio.setChecked(chosen);
    radio.setAutoExclusive(exclusive);
    if (chosen && radio.parentWidget()) {
        takeTab(radio);
    }
}

void bindRadio(QRadioButton &radio, const QString &key) {
    const QVariant choice = radio.property("settingsValue");
    SettingsBinding *binding = bind(
        radio, key, [&radio, choice](const QVariant &value) { showChosen(radio, isChoice(value, choice)); });
    QObject::connect(&radio, &QRadioButton::clicked, binding, [binding, choice] { binding->write(choice); });
}

void bindItem(QAction &item, const QString &key) {
    item.setCheckable(true);
    SettingsBinding *binding =
        bind(item, key, [&item](const QVariant &value) { item.setChecked(boolValue(value)); });
    QObject::connect(&item, &QAction::triggered, binding, &SettingsBinding::write);
}

void bindCombo(QComboBox &combo, const QString &key) {
    SettingsBinding *binding =
        bind(combo, key, [&combo](const QVariant &value) { combo.setCurrentIndex(asInt(value)); });
    QObject::connect(&combo, &QComboBox::activated, binding, &SettingsBinding::write);
}

void bindSpin(QSpinBox &spin, const QString &key) {
    SettingsBinding *binding =
        bind(spin, key, [&spin](const QVariant &value) { spin.setValue(asInt(value)); });
    QObject::connect(&spin, &QSpinBox::valueChanged, binding, &SettingsBinding::write);
}

void bindRealSpin(QDoubleSpinBox &spin, const QString &key) {
    SettingsBinding *binding =
        bind(spin, key, [&spin](const QVariant &value) { spin.setValue(asReal(value)); });
    QObject::connect(&spin, &QDoubleSpinBox::valueChanged, binding, &SettingsBinding::write);
}

void bindSlider(QAbstractSlider &slider, const QString &key) {
    SettingsBinding *binding =
        bind(slider, key, [&slider](const QVariant &value) { slider.setValue(asInt(value)); });
    QObject::connect(&slider, &QAbstractSlider::valueChanged, binding, &SettingsBinding::write);
}

void bindLine(QLineEdit &line, const QString &key) {
    SettingsBinding *binding =
        bind(line, key, [&line](const QVariant &value) { line.setText(value.toString()); });
    QObject::connect(&line, &QLineEdit::editingFinished, binding, [&line, binding] {
        if (line.isModified()) { // it is finished, too, when the focus passes through
            line.setModified(false);
            binding->write(line.text());
        }
    });
}

/// Plans the binding where the control is of that class.
template <typename Control>
bool planAs(Wiring &wiring, QObject &object, const QString &key,
            void (*bindControl)(Control &, const QString &)) {
    auto *control = qobject_cast<Control *>(&object);
    if (control) {
        wiring.add([control, key, bindControl] { bindControl(*control, key); });
    }
    return control;
}

bool planBinding(Wiring &wiring, QObject &object, const QString &key) {
    return planAs(wiring, object, key, bindRadio) || planAs(wiring, object, key, bindButton) ||
           planAs(wiring, object, key, bindItem) || planAs(wiring, object, key, bindCombo) ||
           planAs(wiring, object, key, bindSpin) || planAs(wiring, object, key, bindRealSpin) ||
           planAs(wiring, object, key, bindSlider) || planAs(wiring, object, key, bindLine);
}

} // namespace

void bindButton(QAbstractButton &button, const QString &key) {
    button.setCheckable(true);
    SettingsBinding *binding =
        bind(button, key, [&button](const QVariant &value) { button.setChecked(boolValue(value)); });
    QObject::connect(&button, &QAbstractButton::clicked, binding, &SettingsBinding::write);
}

void bindEnabled(QObject &object, const QString &key) {
    bind(object, key, [&object](const QVariant &value) { object.setProperty("enabled", boolValue(value)); });
}

void planSettings(Wiring &wiring, QObject &object) {
    const QString key = object.property("settingsKey").toString();
    if (!key.isEmpty() && !planBinding(wiring, object, key)) {
        wiring.complain(QStringLiteral("%1 cannot show a setting").arg(object.objectName()));
    }
    if (qobject_cast<QRadioButton *>(&object) && !key.isEmpty() &&
        !object.property("settingsValue").isValid()) {
        wiring.complain(QStringLiteral("%1 has no settingsValue").arg(object.objectName()));
    }
    const QString enabledKey = object.property("enabledKey").toString();
    if (!enabledKey.isEmpty() && object.metaObject()->indexOfProperty("enabled") < 0) {
        wiring.complain(QStringLiteral("%1 cannot be disabled").arg(object.objectName()));
    } else if (!enabledKey.isEmpty()) {
        wiring.add([&object, enabledKey] { bindEnabled(object, enabledKey); });
    }
}

} // namespace barquell
