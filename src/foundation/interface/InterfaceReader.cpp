#include "foundation/interface/InterfaceReader.h"

#include "foundation/interface/InterfaceClasses.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QMainWindow>
#include <QMetaProperty>
#include <QScopedValueRollback>
#include <QToolBar>

#include <algorithm>

namespace barquell {

namespace {

constexpr int kDeepest = 64; // our own files go a dozen deep

/// A window of Qt's has places for its parts.
void adopt(QWidget &parent, QWidget &child) {
    auto *window = qobject_cast<QMainWindow *>(&parent);
    if (!window) {
        return;
    }
    if (auto *bar = qobject_cast<QToolBar *>(&child)) {
        window->addToolBar(bar);
    } else if (!window->centralWidget()) {
        window->setCentralWidget(&child);
    }
}

} // namespace

std::unique_ptr<QWidget> InterfaceReader::read() {
    auto root = std::make_unique<QWidget>();
    if (!_xml.readNextStartElement() || _xml.name() != QLatin1String("ui")) {
        complain(QStringLiteral("it is no form"));
    }
    bool isEmpty = true;
    while (_xml.readNextStartElement()) {
        if (isEmpty && _xml.name() == QLatin1String("widget")) {
            isEmpty = false;
            while (_xml.readNextStartElement()) {
                readPart(*root);
            }
        } else if (_xml.name() == QLatin1String("class") || _xml.name() == QLatin1String("customwidgets")) {
            _xml.skipCurrentElement();
        } else if (_xml.name() == QLatin1String("widget") || _xml.readNextStartElement()) {
            complain(QStringLiteral("the form says more than it may"));
        }
    }
    if (isEmpty) {
        complain(QStringLiteral("it holds nothing"));
    }
    connectLater();
    while (!_xml.atEnd()) { // nothing may follow
        _xml.readNext();
    }
    return root;
}

QString InterfaceReader::complaint() const {
    return _xml.hasError() ? QStringLiteral("line %1: %2").arg(_xml.lineNumber()).arg(_xml.errorString())
                           : QString();
}

InterfaceReader::Head InterfaceReader::readHead() {
    Head head{.className = _xml.attributes().value(QLatin1String("class")).toString(),
              .name = _xml.attributes().value(QLatin1String("name")).toString(),
              .objectClass = {},
              .properties = {}};
    while ((head.hasParts = _xml.readNextStartElement()) && _xml.name() == QLatin1String("property")) {
        InterfaceProperty property = readInterfaceProperty(_xml);
        if (property.name == "objectClass") {
            head.objectClass = property.value.toString();
        } else {
            head.properties.push_back(std::move(property));
        }
    }
    return head;
}

QWidget *InterfaceReader::readWidget(QWidget &parent) {
    const Head head = readHead();
    if (!head.objectClass.isEmpty()) {
        readObject(head, parent);
        return nullptr;
    }
    QWidget *widget = InterfaceClasses::makeWidget(head.className, &parent).release();
    if (!widget) {
        complain(QStringLiteral("%1 is of the unknown class %2").arg(head.name, head.className));
        return nullptr;
    }
    named(*widget, head);
    for (bool more = head.hasParts; more; more = _xml.readNextStartElement()) {
        readPart(*widget);
    }
    adopt(parent, *widget);
    return widget;
}

void InterfaceReader::readObject(const Head &head, QWidget &parent) {
    std::unique_ptr<QObject> object = InterfaceClasses::makeObject(head.objectClass);
    if (!object) {
        complain(QStringLiteral("%1 is of the unknown class %2").arg(head.name, head.objectClass));
        return;
    }
    if (head.hasParts) {
        complain(QStringLiteral("the placeholder %1 is not empty").arg(head.name));
        return;
    }
    object->setParent(&parent);
    named(*object.release(), head);
}

void InterfaceReader::readPart(QWidget &widget) {
    const QScopedValueRollback<int> deeper(_depth, _depth + 1);
    if (isTooDeep()) {
        return;
    }
    const QString element = _xml.name().toString();
    if (element == QLatin1String("property")) {
        set(widget, readInterfaceProperty(_xml));
    } else if (element == QLatin1String("widget")) {
        readWidget(widget);
    } else if (element == QLatin1String("action")) {
        readAction(widget);
    } else if (element == QLatin1String("layout")) {
        if (std::unique_ptr<QLayout> layout = readLayout(widget)) {
            widget.setLayout(layout.release());
        }
    } else if (element == QLatin1String("item")) {
        readChoice(widget);
    } else if (element == QLatin1String("addaction")) {
        _actions.push_back({&widget, _xml.attributes().value(QLatin1String("name")).toString()});
        _xml.skipCurrentElement();
    } else {
        complain(QStringLiteral("%1 holds an unknown element %2").arg(widget.objectName(), element));
    }
}

void InterfaceReader::readAction(QWidget &parent) {
    const Head head = readHead();
    std::unique_ptr<QObject> object;
    if (head.objectClass.isEmpty()) {
        object = std::make_unique<QAction>();
    } else {
        object = InterfaceClasses::makeObject(head.objectClass);
    }
    if (!qobject_cast<QAction *>(object.get())) {
        complain(QStringLiteral("the action %1 is of the unknown class %2").arg(head.name, head.objectClass));
        return;
    }
    if (head.hasParts) {
        complain(QStringLiteral("the action %1 holds more than properties").arg(head.name));
        return;
    }
    object->setParent(&parent);
    named(*object.release(), head);
}

/// An item of a combo box.
void InterfaceReader::readChoice(QWidget &widget) {
    auto *box = qobject_cast<QComboBox *>(&widget);
    const Head head = readHead();
    if (!box || head.hasParts || head.properties.size() != 1 || head.properties.front().name != "text") {
        complain(QStringLiteral("%1 has an item that is no text").arg(widget.objectName()));
        return;
    }
    box->addItem(head.properties.front().value.toString());
}

void InterfaceReader::named(QObject &object, const Head &head) {
    if (objectNamed(head.name)) {
        complain(QStringLiteral("there are two of the name %1").arg(head.name));
    }
    object.setObjectName(head.name);
    _objects.push_back(&object);
    for (const InterfaceProperty &property : head.properties) {
        set(object, property);
    }
}

void InterfaceReader::set(QObject &object, const InterfaceProperty &property) {
    auto *label = qobject_cast<QLabel *>(&object);
    if (label && property.name == "buddy") {
        _buddies.push_back({label, property.value.toString()});
        return;
    }
    if (property.isDynamic) {
        object.setProperty(property.name.constData(), property.value);
        return;
    }
    const QMetaObject *meta = object.metaObject();
    const QMetaProperty declared = meta->property(meta->indexOfProperty(property.name.constData()));
    if (!declared.isValid() || !declared.write(&object, property.value)) {
        complain(QStringLiteral("%1 does not take the property %2")
                     .arg(object.objectName(), QString::fromUtf8(property.name)));
    }
}

/// What names objects that may stand further down in the file.
void InterfaceReader::connectLater() {
    for (const Later &later : _actions) {
        auto *action = qobject_cast<QAction *>(objectNamed(later.name));
        if (later.name == QLatin1String("separator")) {
            action = std::make_unique<QAction>(later.widget).release();
            action->setSeparator(true);
        }
        if (!action) {
            complain(QStringLiteral("there is no action %1").arg(later.name));
            return;
        }
        later.widget->addAction(action);
    }
    for (const Later &later : _buddies) {
        auto *buddy = qobject_cast<QWidget *>(objectNamed(later.name));
        if (!buddy) {
            complain(QStringLiteral("there is no buddy %1").arg(later.name));
            return;
        }
        static_cast<QLabel *>(later.widget)->setBuddy(buddy);
    }
}

QObject *InterfaceReader::objectNamed(const QString &name) const {
    const auto found = std::find_if(_objects.begin(), _objects.end(), [&](const QObject *one) {
        return !name.isEmpty() && one->objectName() == name;
    });
    return found == _objects.end() ? nullptr : *found;
}

/// Each depth takes some of the stack, here and when the objects go.
bool InterfaceReader::isTooDeep() {
    if (_depth > kDeepest) {
        complain(QStringLiteral("parts lie within parts more than %1 deep").arg(kDeepest));
    }
    return _depth > kDeepest;
}

/// The first one counts; nothing is read after it.
void InterfaceReader::complain(const QString &what) {
    if (!_xml.hasError()) {
        _xml.raiseError(what);
    }
}

} // namespace barquell
