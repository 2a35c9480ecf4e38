#include "shortcuts/controls/ShortcutCaptureButton.h"

#include "foundation/interface/SettingsBinding.h"
#include "platform/Platform.h"
#include "shortcuts/KeyTables.h"
#include "shortcuts/controls/KeySequence.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace barquell {

namespace {

/// A Tab, with Shift or without, is for going on to the next control.
bool movesFocus(const KeyEvent &event) {
    return event.type == KeyEvent::Type::KeyDown && event.keyCode == kKeyTab &&
           !Shortcut::validate(event.keyCode, event.modifierFlags);
}

} // namespace

ShortcutCaptureButton::ShortcutCaptureButton(QWidget *parent) : QPushButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAutoDefault(false); // Return is a key to record
}

void ShortcutCaptureButton::awakeFromNib() {
    if (_clearButton) {
        connect(_clearButton, &QAbstractButton::clicked, this, [this] { clearShortcut({}); });
        QSizePolicy policy = _clearButton->sizePolicy();
        policy.setRetainSizeWhenHidden(true); // or the button would move while it records
        _clearButton->setSizePolicy(policy);
    }
    for (QAbstractButton *helper : {_clearButton.data(), _enabledCheckbox.data()}) {
        if (helper) { // a screen reader says whose it is
            helper->setAccessibleDescription(accessibleName());
        }
    }
    if (_shortcutName.isEmpty()) {
        return;
    }
    monitor()->addChangeListener(this, true);
    bindToEnabledSetting();
}

void ShortcutCaptureButton::bindToEnabledSetting() {
    const QString key = _shortcutName + QStringLiteral("Enabled");
    bindEnabled(*this, key);
    if (_clearButton) {
        bindEnabled(*_clearButton, key);
    }
    if (_enabledCheckbox) {
        bindButton(*_enabledCheckbox, key);
    }
}

void ShortcutCaptureButton::shortcutMonitorDidChange(ShortcutMonitor *monitor) {
    showShortcut(monitor->shortcut());
}

void ShortcutCaptureButton::refreshTitle() {
    const ShortcutMonitor *const shown = monitor();
    showShortcut(shown ? shown->shortcut() : std::nullopt);
}

void ShortcutCaptureButton::showShortcut(const std::optional<Shortcut> &shortcut) {
    if (shortcut) {
        setText(shortcut->modifierFlagsString() + shortcut->keyCodeString().value_or(QString()));
        // Symbols are not read out; words are.
        setAccessibleDescription(
            keySequence(shortcut->keyEquivalentString().value_or(QString()), shortcut->modifierFlags())
                .toString(QKeySequence::NativeText));
    } else {
        setText(QStringLiteral("..."));
        setAccessibleDescription({});
    }
    setClearButtonVisible(shortcut.has_value());
}

void ShortcutCaptureButton::setClearButtonVisible(bool visible) {
    if (_clearButton) {
        _clearButton->setVisible(visible);
    }
}

void ShortcutCaptureButton::clearShortcut(const QVariant & /*sender*/) {
    if (ShortcutMonitor *edited = monitor()) {
        edited->setShortcut(std::nullopt);
    }
}

ShortcutMonitor *ShortcutCaptureButton::monitor() const {
    return _shortcutName.isEmpty() ? nullptr : ShortcutMonitor::monitorWithName(_shortcutName);
}

void ShortcutCaptureButton::mousePressEvent(QMouseEvent *event) {
    if (isEnabled()) {
        setFocus(Qt::MouseFocusReason);
    }
    QPushButton::mousePressEvent(event);
}

void ShortcutCaptureButton::focusInEvent(QFocusEvent *event) {
    startCapturing();
    QPushButton::focusInEvent(event);
}

void ShortcutCaptureButton::focusOutEvent(QFocusEvent *event) {
    stopCapturing();
    QPushButton::focusOutEvent(event);
}

bool ShortcutCaptureButton::event(QEvent *event) {
    if (event->type() == QEvent::ParentChange) {
        stopCapturing();
    }
    return QPushButton::event(event);
}

void ShortcutCaptureButton::startCapturing() {
    setText(QString());
    setClearButtonVisible(false);
    if (!_captureMonitor) {
        _captureMonitor = true;
        QCoreApplication::instance()->installEventFilter(this);
    }
}

void ShortcutCaptureButton::stopCapturing() {
    if (_captureMonitor) {
        QCoreApplication::instance()->removeEventFilter(this);
        _captureMonitor = false;
        refreshTitle();
    }
}

/// The widget around it takes the focus, and the next Tab goes on from where this button stands.
void ShortcutCaptureButton::endCapturing() {
    QWidget *const around = parentWidget();
    if (!around) {
        clearFocus();
        return;
    }
    if (around->focusPolicy() == Qt::NoFocus) {
        around->setFocusPolicy(Qt::ClickFocus);
    }
    setTabOrder(this, around);
    around->setFocus(Qt::OtherFocusReason);
}

bool ShortcutCaptureButton::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept(); // no shortcut of a menu or a button comes before the recorder
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return handleKey(static_cast<const QKeyEvent &>(*event));
    default:
        return QPushButton::eventFilter(watched, event);
    }
}

/// True where the event goes no further.
bool ShortcutCaptureButton::handleKey(const QKeyEvent &event) {
    const KeyEvents *const keyEvents = platform().keyEvents;
    const auto keyEvent = keyEvents ? keyEvents->keyEvent(event, KeyMeanings::Physical) : std::nullopt;
    if (!keyEvent) {
        return false;
    }
    if (movesFocus(*keyEvent)) {
        stopCapturing(); // now, so that the clear button is there to be moved to
        return false;
    }
    if (keyEvent->type == KeyEvent::Type::FlagsChanged) {
        handleFlagsChanged(*keyEvent);
    } else {
        handleKeyDown(*keyEvent);
    }
    return true;
}

void ShortcutCaptureButton::handleFlagsChanged(const KeyEvent &event) {
    setText(Shortcut::modifierFlagsString(event.modifierFlags));
}

void ShortcutCaptureButton::handleKeyDown(const KeyEvent &event) {
    if (Shortcut::validate(event.keyCode, event.modifierFlags)) {
        if (ShortcutMonitor *edited = monitor()) {
            edited->setShortcut(Shortcut::shortcutFromKeyEvent(event));
        }
    } else if (event.keyCode == kKeyEscape) {
        refreshTitle();
    } else {
        platform().keyEvents->beep();
        return;
    }
    endCapturing();
}

} // namespace barquell
