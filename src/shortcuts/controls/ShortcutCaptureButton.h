#pragma once

#include "platform/KeyEvents.h"
#include "shortcuts/ShortcutMonitor.h"

#include <QAbstractButton>
#include <QPointer>
#include <QPushButton>
#include <QString>

namespace barquell {

/// Shows a named shortcut and, while it has the focus, records the next valid keys as the new one. A plain
/// Tab moves the focus on, Escape gives up, any other key that cannot be a shortcut beeps. Afterwards the
/// widget around it has the focus. Main thread only.
class ShortcutCaptureButton final : public QPushButton, public ShortcutMonitorListener {
    Q_OBJECT
    Q_PROPERTY(QString shortcutName READ shortcutName WRITE setShortcutName)
    Q_PROPERTY(QAbstractButton *clearButton READ clearButton WRITE setClearButton)
    Q_PROPERTY(QAbstractButton *enabledCheckbox READ enabledCheckbox WRITE setEnabledCheckbox)

public:
    explicit ShortcutCaptureButton(QWidget *parent = nullptr);

    /// The monitor's; set from the interface file, as are the two buttons beside it.
    const QString &shortcutName() const { return _shortcutName; }
    void setShortcutName(const QString &name) { _shortcutName = name; }
    QAbstractButton *clearButton() const { return _clearButton; }
    void setClearButton(QAbstractButton *button) { _clearButton = button; }
    QAbstractButton *enabledCheckbox() const { return _enabledCheckbox; }
    void setEnabledCheckbox(QAbstractButton *checkbox) { _enabledCheckbox = checkbox; }

    void shortcutMonitorDidChange(ShortcutMonitor *monitor) override;

    /// Takes the shortcut away; the argument of an action is of no interest.
    Q_INVOKABLE void clearShortcut(const QVariant &sender);
    Q_INVOKABLE void awakeFromNib();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool event(QEvent *event) override;

private:
    bool handleKey(const QKeyEvent &event);
    void handleKeyDown(const KeyEvent &event);
    void handleFlagsChanged(const KeyEvent &event);
    void startCapturing();
    void stopCapturing();
    void endCapturing();
    void bindToEnabledSetting();
    ShortcutMonitor *monitor() const;
    void refreshTitle();
    void showShortcut(const std::optional<Shortcut> &shortcut);
    void setClearButtonVisible(bool visible);

    bool _captureMonitor = false; // installed as the application's event filter
    QString _shortcutName;
    QPointer<QAbstractButton> _clearButton;
    QPointer<QAbstractButton> _enabledCheckbox;
};

} // namespace barquell
