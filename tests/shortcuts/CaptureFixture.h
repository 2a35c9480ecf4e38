#pragma once

#include "foundation/UserDefaults.h"
#include "shortcuts/controls/ShortcutCaptureButton.h"
#include "support/Place.h"

#include <QCheckBox>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace barquell::test {

/// A window as an interface file makes it: a recorder for "Light", its two companions, and a line after them.
class CaptureFixture : public testing::Test {
protected:
    CaptureFixture() {
        place();
        setEnabledSetting(true);
        first->setObjectName(QStringLiteral("first"));
        recorder->setShortcutName(name());
        recorder->setClearButton(clearButton);
        recorder->setEnabledCheckbox(checkbox);
        auto *layout = new QVBoxLayout(&window); // NOLINT(cppcoreguidelines-owning-memory): the window's
        for (QWidget *widget :
             std::initializer_list<QWidget *>{first, recorder, clearButton, checkbox, last}) {
            layout->addWidget(widget);
        }
    }

    /// On screen, with the focus on the first button.
    void show() {
        recorder->awakeFromNib();
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        first->setFocus();
    }

    /// The recorder waits for keys.
    void startCapturing() {
        show();
        QTest::mouseClick(recorder, Qt::LeftButton);
        ASSERT_TRUE(recorder->hasFocus());
    }

    /// A key as it comes from the keyboard, to the window that is in front.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }

    static QString name() { return QStringLiteral("Light"); }
    static void setEnabledSetting(bool enabled) {
        UserDefaults::standard().setObject(enabled, name() + QStringLiteral("Enabled"));
    }
    static void setStored(const QVariantList &shortcut) {
        UserDefaults::standard().setObject(shortcut, name());
    }
    static QVariant stored() { return UserDefaults::standard().objectForKey(name()); }
    static int beeps() { return place().platform.keyEvents.beeps; }

    /// It shows the modifiers held, so it records.
    bool isCapturing() {
        QTest::keyPress(window.windowHandle(), Qt::Key_Control);
        const bool shows = recorder->text() == QStringLiteral("⌃");
        QTest::keyRelease(window.windowHandle(), Qt::Key_Control, Qt::ControlModifier);
        return shows;
    }

    QWidget window;
    QPushButton *first = child<QPushButton>();
    ShortcutCaptureButton *recorder = child<ShortcutCaptureButton>();
    QPushButton *clearButton = child<QPushButton>();
    QCheckBox *checkbox = child<QCheckBox>();
    QPushButton *last = child<QPushButton>();

private:
    template <typename Widget>
    Widget *child() {
        return std::make_unique<Widget>(&window).release();
    }
};

} // namespace barquell::test
