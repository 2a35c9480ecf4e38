#include "foundation/interface/ActionSender.h"
#include "foundation/interface/Wiring.h"

#include <QAbstractButton>
#include <QAction>
#include <QMenu>

namespace barquell {

namespace {

void validateItems(const QMenu &menu) {
    for (QAction *item : menu.actions()) {
        if (const auto *sender = item->findChild<ActionSender *>(QString(), Qt::FindDirectChildrenOnly)) {
            item->setEnabled(sender->isValid());
        }
    }
}

/// A child of the object, which owns it.
const ActionSender *makeSender(QObject &object, QObject *target, const Selector &selector) {
    return std::make_unique<ActionSender>(object, target, selector).release();
}

void planAction(Wiring &wiring, QObject &object, const QString &action) {
    const qsizetype dot = action.indexOf(QLatin1Char('.'));
    const QString name = action.left(dot);
    const Selector selector(action.mid(dot + 1).toUtf8().constData());
    QObject *target = wiring.objectNamed(name);
    // The delegate is looked at when the action is sent: it may come later than the file.
    const bool toDelegate = !target && name == QLatin1String("delegate");
    if (!toDelegate && !(target && selector.resolvedOn(*target).isValid())) {
        wiring.complain(QStringLiteral("nobody takes the action %1").arg(action));
    } else if (auto *button = qobject_cast<QAbstractButton *>(&object)) {
        wiring.add([button, target, selector] {
            const ActionSender *sender = makeSender(*button, target, selector);
            QObject::connect(button, &QAbstractButton::clicked, sender, &ActionSender::send);
        });
    } else if (auto *item = qobject_cast<QAction *>(&object)) {
        wiring.add([item, target, selector] {
            const ActionSender *sender = makeSender(*item, target, selector);
            QObject::connect(item, &QAction::triggered, sender, &ActionSender::sendIfValid);
        });
    } else {
        wiring.complain(QStringLiteral("%1 sends no actions").arg(object.objectName()));
    }
}

} // namespace

void planActions(Wiring &wiring, QObject &object) {
    const QString action = object.property("action").toString();
    if (!action.isEmpty()) {
        planAction(wiring, object, action);
    }
    if (auto *menu = qobject_cast<QMenu *>(&object)) {
        wiring.add(
            [menu] { QObject::connect(menu, &QMenu::aboutToShow, menu, [menu] { validateItems(*menu); }); });
    }
}

} // namespace barquell
