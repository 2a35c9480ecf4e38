#include "foundation/interface/InterfaceLoader.h"

#include "foundation/interface/InterfaceClasses.h"

#include <QAction>
#include <QCoreApplication>
#include <QIODevice>
#include <QWidget>

#include <algorithm>

namespace barquell {

namespace {

QSet<QString> asSet(const QStringList &list) {
    return {list.begin(), list.end()};
}

void copyDynamicProperties(const QObject &from, QObject &to) {
    for (const QByteArray &name : from.dynamicPropertyNames()) {
        if (!name.startsWith("_q_")) { // Qt's own
            to.setProperty(name.constData(), from.property(name.constData()));
        }
    }
}

} // namespace

/// A form builder loads every plugin for Designer that it finds where Qt's plugins lie, among them whole
/// toolkits. It finds none while this lives.
class InterfaceLoader::WithoutPlugins {
public:
    WithoutPlugins() : _paths(QCoreApplication::libraryPaths()) { QCoreApplication::setLibraryPaths({}); }
    ~WithoutPlugins() { QCoreApplication::setLibraryPaths(_paths); }
    Q_DISABLE_COPY_MOVE(WithoutPlugins)

private:
    const QStringList _paths;
};

InterfaceLoader::InterfaceLoader(QHash<QString, QString> objectClasses)
    : InterfaceLoader(std::move(objectClasses), WithoutPlugins()) {}

InterfaceLoader::InterfaceLoader(QHash<QString, QString> objectClasses, const WithoutPlugins & /*during*/)
    : _objectClasses(std::move(objectClasses)), _widgetsOfQt(asSet(availableWidgets())) {
    setTranslationEnabled(false); // the texts have been translated by now
}

std::unique_ptr<QWidget> InterfaceLoader::make(QIODevice &file) {
    std::unique_ptr<QWidget> root(load(&file));
    if (!root) {
        complain(errorString().isEmpty() ? QStringLiteral("it holds nothing") : errorString());
        return nullptr;
    }
    _objects.erase(std::remove(_objects.begin(), _objects.end(), root.get()), _objects.end());
    for (QObject *&object : _objects) {
        if (object->isWidgetType() && _objectClasses.contains(object->objectName())) {
            object = replacePlaceholder(object);
        }
    }
    return root;
}

QWidget *InterfaceLoader::createWidget(const QString &className, QWidget *parent, const QString &name) {
    std::unique_ptr<QWidget> widget = makeWidget(className, parent, name);
    if (!widget) {
        complain(QStringLiteral("%1 is of the unknown class %2").arg(name, className));
        widget = std::make_unique<QWidget>(parent); // the builder goes on with it, in vain
    }
    widget->setObjectName(name);
    _objects.push_back(widget.get());
    return widget.release();
}

std::unique_ptr<QWidget> InterfaceLoader::makeWidget(const QString &className, QWidget *parent,
                                                     const QString &name) {
    std::unique_ptr<QWidget> ours = InterfaceClasses::makeWidget(className, parent);
    if (ours || !_widgetsOfQt.contains(className)) {
        return ours;
    }
    return std::unique_ptr<QWidget>(QUiLoader::createWidget(className, parent, name));
}

QAction *InterfaceLoader::createAction(QObject *parent, const QString &name) {
    const QString className = _objectClasses.value(name);
    std::unique_ptr<QAction> action = makeAction(className, parent);
    if (!action) {
        complain(QStringLiteral("the action %1 is of the unknown class %2").arg(name, className));
        action = std::make_unique<QAction>(parent);
    }
    action->setObjectName(name);
    _objects.push_back(action.get());
    return action.release();
}

std::unique_ptr<QAction> InterfaceLoader::makeAction(const QString &className, QObject *parent) {
    if (className.isEmpty()) {
        return std::make_unique<QAction>(parent);
    }
    std::unique_ptr<QObject> object = InterfaceClasses::makeObject(className);
    auto *action = qobject_cast<QAction *>(object.get());
    if (!action) {
        return nullptr;
    }
    action->setParent(parent);
    object.release(); // NOLINT(bugprone-unused-return-value): it is the action
    return std::unique_ptr<QAction>(action);
}

QObject *InterfaceLoader::replacePlaceholder(QObject *placeholder) {
    const QString name = placeholder->objectName();
    std::unique_ptr<QObject> object = InterfaceClasses::makeObject(_objectClasses.value(name));
    if (!object || object->isWidgetType()) {
        complain(QStringLiteral("%1 is of the unknown class %2").arg(name, _objectClasses.value(name)));
        return placeholder;
    }
    if (!placeholder->children().isEmpty()) {
        complain(QStringLiteral("the placeholder %1 is not empty").arg(name));
        return placeholder;
    }
    object->setObjectName(name);
    copyDynamicProperties(*placeholder, *object);
    object->setParent(placeholder->parent());
    const std::unique_ptr<QObject> goes(placeholder);
    return object.release();
}

void InterfaceLoader::complain(const QString &what) {
    if (_complaint.isEmpty()) {
        _complaint = what;
    }
}

} // namespace barquell
