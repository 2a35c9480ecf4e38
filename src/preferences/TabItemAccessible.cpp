#include "preferences/TabItemAccessible.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QToolButton>

#include <memory>

namespace barquell {

namespace {

class TabItemAccessible final : public QAccessibleWidget {
public:
    explicit TabItemAccessible(QToolButton &button) : QAccessibleWidget(&button, QAccessible::RadioButton) {}

    QString text(QAccessible::Text text) const override {
        const QString told = QAccessibleWidget::text(text);
        return text == QAccessible::Name && told.isEmpty() ? button().text() : told;
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = button().isChecked();
        state.pressed = button().isDown();
        return state;
    }

    QStringList actionNames() const override {
        return QStringList{toggleAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override {
        if (name == toggleAction()) {
            button().click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    QToolButton &button() const { return *qobject_cast<QToolButton *>(object()); }
};

QAccessibleInterface *tabItem(const QString & /*className*/, QObject *object) {
    auto *button = qobject_cast<QToolButton *>(object);
    const QAction *item = button ? button->defaultAction() : nullptr;
    const bool choosesTab = item && item->property("itemIdentifier").isValid();
    return choosesTab ? std::make_unique<TabItemAccessible>(*button).release()
                      : nullptr; // Qt's cache keeps it
}

} // namespace

void tellTabItemsAsChoices() {
    QAccessible::removeFactory(tabItem); // or there would be one for each call
    QAccessible::installFactory(tabItem);
}

} // namespace barquell
