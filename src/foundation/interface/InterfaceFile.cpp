#include "foundation/interface/InterfaceFile.h"

#include "foundation/interface/InterfaceReader.h"
#include "foundation/interface/Wiring.h"

#include <QFile>
#include <QLayout>
#include <QMetaMethod>
#include <QPointer>
#include <QWidget>

namespace barquell {

namespace {

std::optional<TopLevelObjects> refuse(const QString &why, QString *complaint) {
    if (complaint) {
        *complaint = why;
    }
    return std::nullopt;
}

Wiring plan(QObject *owner, const std::vector<QObject *> &objects) {
    Wiring wiring(owner, objects);
    for (QObject *object : objects) {
        planOutlets(wiring, *object);
        planSettings(wiring, *object); // before the action, which then finds the setting written
        planActions(wiring, *object);
    }
    return wiring;
}

void release(QObject &object) {
    if (auto *widget = qobject_cast<QWidget *>(&object)) {
        widget->setParent(nullptr, widget->windowFlags()); // else a menu would forget that it is one
    } else {
        object.setParent(nullptr);
    }
}

/// One who gets a parent later is that parent's: whoever of the two goes first takes it along.
std::shared_ptr<QObject> shared(QObject &object) {
    const QPointer<QObject> guard(&object);
    return {&object, [guard](QObject *) { const std::unique_ptr<QObject> goes(guard.data()); }};
}

/// What has no name is the form builder's.
bool isTopLevel(const QObject &child) {
    return !child.objectName().isEmpty() && !qobject_cast<const QLayout *>(&child);
}

TopLevelObjects takeChildren(const QWidget &root) {
    TopLevelObjects taken;
    const std::vector<QObject *> children(root.children().begin(), root.children().end());
    for (QObject *child : children) {
        if (isTopLevel(*child)) {
            release(*child);
            taken.push_back(shared(*child));
        }
    }
    return taken;
}

void awake(const std::vector<QPointer<QObject>> &objects) {
    for (const QPointer<QObject> &object : objects) {
        if (object && object->metaObject()->indexOfMethod("awakeFromNib()") >= 0) {
            QMetaObject::invokeMethod(object, "awakeFromNib", Qt::DirectConnection);
        }
    }
}

} // namespace

std::optional<TopLevelObjects> loadInterfaceFile(const QString &name, QObject *owner, QString *complaint) {
    QFile file(QStringLiteral(":/interface/%1.ui").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return refuse(QStringLiteral("it is missing"), complaint);
    }
    return loadInterface(file.readAll(), owner, complaint);
}

std::optional<TopLevelObjects> loadInterface(const QByteArray &content, QObject *owner, QString *complaint) {
    InterfaceReader reader(content);
    const std::unique_ptr<QWidget> root = reader.read();
    if (!reader.complaint().isEmpty()) {
        return refuse(reader.complaint(), complaint);
    }
    const Wiring wiring = plan(owner, reader.objects());
    if (!wiring.complaint().isEmpty()) {
        return refuse(wiring.complaint(), complaint);
    }
    TopLevelObjects topLevel = takeChildren(*root);
    // An outlet's setter, or one who wakes, may well send others away.
    const std::vector<QPointer<QObject>> guarded(reader.objects().begin(), reader.objects().end());
    wiring.perform();
    awake(guarded);
    return topLevel;
}

} // namespace barquell
