#include "preferences/PreferencesWindow.h"

#include "platform/KeyEvents.h"
#include "platform/Platform.h"
#include "preferences/PreferencesWindowController.h"
#include "preferences/TemplateIcon.h"

#include <QActionGroup>
#include <QKeyEvent>
#include <QToolBar>

namespace barquell {

namespace {

QString identifierOf(const QAction &item) {
    return item.property("itemIdentifier").toString();
}

} // namespace

void PreferencesWindow::awakeFromNib() {
    ContentWindow::awakeFromNib();
    setTemplateIcons(*this);
    auto *group = new QActionGroup(this); // NOLINT(cppcoreguidelines-owning-memory): a child
    for (QAction *item : items()) {
        group->addAction(item);
        if (QWidget *button = findChild<QToolBar *>()->widgetForAction(item)) {
            button->setFocusPolicy(Qt::TabFocus); // tool buttons leave the keyboard out
        }
    }
}

QList<QAction *> PreferencesWindow::items() const {
    const auto *toolbar = findChild<QToolBar *>();
    return toolbar ? toolbar->actions() : QList<QAction *>();
}

void PreferencesWindow::setSelectedItemIdentifier(const QString &identifier) {
    for (QAction *item : items()) {
        QActionGroup *group = item->actionGroup();
        if (group) {
            group->setExclusive(false); // or none could be without highlight
        }
        item->setChecked(!identifier.isEmpty() && identifierOf(*item) == identifier);
        if (group) {
            group->setExclusive(true);
        }
    }
}

QString PreferencesWindow::selectedItemIdentifier() const {
    for (const QAction *item : items()) {
        if (item->isChecked()) {
            return identifierOf(*item);
        }
    }
    return {};
}

void PreferencesWindow::keyPressEvent(QKeyEvent *event) {
    auto *controller = qobject_cast<PreferencesWindowController *>(_preferencesController.data());
    const KeyEvents *keys = platform().keyEvents;
    const auto key = keys ? keys->keyEvent(*event, KeyMeanings::Window) : std::nullopt;
    if (!controller || !key || !controller->handleKeyDown(*key)) {
        ContentWindow::keyPressEvent(event);
    }
}

} // namespace barquell
