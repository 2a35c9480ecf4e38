#include "preferences/PreferencesTab.h"

#include "foundation/NotificationCenter.h"
#include "platform/KeyEvents.h"
#include "preferences/FittingSize.h"
#include "preferences/PreferencesWindowController.h"
#include "preferences/TemplateIcon.h"
#include "preferences/WindowKeys.h"
#include "process/Helpers.h"

#include <QComboBox>
#include <QKeyEvent>

#include <stdexcept>

namespace barquell {

namespace {

const QString kClassPrefix = QStringLiteral("PreferencesTab");

} // namespace

PreferencesTab::~PreferencesTab() {
    NotificationCenter::defaultCenter().removeObserver(*this);
}

QString PreferencesTab::identifier() const {
    if (!_identifier.isEmpty()) {
        return _identifier;
    }
    const QString className =
        QString::fromLatin1(metaObject()->className()).section(QStringLiteral("::"), -1);
    QString derived = QString(className).remove(kClassPrefix);
    if (derived.isEmpty()) {
        throw std::logic_error("unrecognized selector: a preferences tab without an identifier");
    }
    return derived;
}

QWidget *PreferencesTab::view() {
    if (!_isViewLoaded) {
        _isViewLoaded = true;
        loadView();
        viewDidLoad();
    }
    return _view;
}

void PreferencesTab::loadView() {
    Helpers::loadNibNamed(kClassPrefix + identifier(), this, &_topLevelObjects);
    if (_view) {
        setTemplateIcons(*_view);
        growToContents(*_view);
        for (QComboBox *combo : _view->findChildren<QComboBox *>()) {
            combo->installEventFilter(this);
        }
    } else {
        _emptyView = std::make_unique<QWidget>();
        _view = _emptyView.get();
    }
}

bool PreferencesTab::eventFilter(QObject *watched, QEvent *event) {
    // A combo box takes every key with a letter for the beginning of an item, the window's keys included.
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->modifiers().testFlag(Qt::ControlModifier)) {
        event->ignore();
        return true;
    }
    return KeyValueObserver::eventFilter(watched, event);
}

bool PreferencesTab::handleWindowKeyDown(const KeyEvent & /*event*/) {
    return false;
}

bool PreferencesTab::matchKeyDown(const KeyEvent &event, std::uint64_t flags, std::uint16_t keyCode) {
    return event.keyCode == keyCode && (event.modifierFlags & kWindowKeyFlags) == flags;
}

PreferencesWindowController *PreferencesTab::owner() const {
    return qobject_cast<PreferencesWindowController *>(_owner.data());
}

void PreferencesTab::setOwner(PreferencesWindowController *owner) {
    _owner = owner;
}

} // namespace barquell
