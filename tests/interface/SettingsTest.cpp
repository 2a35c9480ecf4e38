#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "interface/Forms.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>

#include <QTest>

namespace barquell::test {
namespace {

const QString kKey = QStringLiteral("Key");

QByteArray radio(const QByteArray &name, const QByteArray &value) {
    return widget("QRadioButton", name,
                  says("settingsKey", "Key") + R"(<property name="settingsValue" stdset="0">)" + value +
                      "</property>");
}

class SettingsTest : public FormTest {
protected:
    SettingsTest() { UserDefaults::standard().removeObjectForKey(kKey); }

    static QVariant stored() { return UserDefaults::standard().objectForKey(kKey); }
    static void store(const QVariant &value) { UserDefaults::standard().setObject(value, kKey); }

    bool loadControl(const QByteArray &className, const QByteArray &more = {}) {
        return load(widget(className, "control", says("settingsKey", "Key") + more));
    }
};

TEST_F(SettingsTest, ACheckBoxIsATruth) {
    store(true);
    ASSERT_TRUE(loadControl("QCheckBox"));
    auto *box = find<QCheckBox>("control");
    EXPECT_TRUE(box->isChecked());
    box->click();
    EXPECT_TRUE(sameValue(stored(), false));
    store(QStringLiteral("YES"));
    EXPECT_TRUE(box->isChecked());
    UserDefaults::standard().removeObjectForKey(kKey);
    EXPECT_FALSE(box->isChecked());
}

TEST_F(SettingsTest, AMenuItemIsATruth) {
    ASSERT_TRUE(load(action("control", says("settingsKey", "Key"))));
    auto *item = find<QAction>("control");
    item->trigger();
    EXPECT_TRUE(sameValue(stored(), true));
    store(false);
    EXPECT_FALSE(item->isChecked());
}

TEST_F(SettingsTest, AComboBoxIsItsIndex) {
    store(1);
    const QByteArray item = R"(<item><property name="text"><string>x</string></property></item>)";
    ASSERT_TRUE(loadControl("QComboBox", item + item + item));
    auto *combo = find<QComboBox>("control");
    EXPECT_EQ(combo->currentIndex(), 1);
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_TRUE(sameValue(stored(), 2LL));
    store(99); // none of the choices, so none is shown
    EXPECT_EQ(combo->currentIndex(), -1);
    EXPECT_TRUE(sameValue(stored(), 99LL));
}

TEST_F(SettingsTest, ASpinBoxIsItsNumber) {
    store(7);
    ASSERT_TRUE(loadControl("QSpinBox"));
    auto *spin = find<QSpinBox>("control");
    EXPECT_EQ(spin->value(), 7);
    spin->stepUp();
    EXPECT_TRUE(sameValue(stored(), 8LL));
}

TEST_F(SettingsTest, ShowingNeverWrites) {
    store(1000000000000LL); // far beyond the control's range
    ASSERT_TRUE(loadControl("QSpinBox"));
    EXPECT_EQ(find<QSpinBox>("control")->value(), 99);
    EXPECT_TRUE(sameValue(stored(), 1000000000000LL));
    store(QStringLiteral("none"));
    EXPECT_TRUE(sameValue(stored(), QStringLiteral("none")));
}

TEST_F(SettingsTest, ARealSpinBoxIsARealNumber) {
    store(2.5);
    ASSERT_TRUE(loadControl("QDoubleSpinBox"));
    auto *spin = find<QDoubleSpinBox>("control");
    EXPECT_EQ(spin->value(), 2.5);
    spin->stepUp();
    EXPECT_TRUE(sameValue(stored(), 3.5));
}

TEST_F(SettingsTest, ASliderIsItsNumber) {
    store(5);
    ASSERT_TRUE(loadControl("QSlider"));
    auto *slider = find<QSlider>("control");
    EXPECT_EQ(slider->value(), 5);
    QTest::keyClick(slider, Qt::Key_Up);
    EXPECT_TRUE(sameValue(stored(), 6LL));
}

TEST_F(SettingsTest, ALineIsWrittenWhenItIsFinished) {
    store(QStringLiteral("old"));
    ASSERT_TRUE(loadControl("QLineEdit"));
    auto *line = find<QLineEdit>("control");
    EXPECT_EQ(line->text(), QStringLiteral("old"));
    line->clear();
    QTest::keyClicks(line, QStringLiteral("new"));
    EXPECT_TRUE(sameValue(stored(), QStringLiteral("old")));
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_TRUE(sameValue(stored(), QStringLiteral("new")));
}

TEST_F(SettingsTest, ALineThatWasOnlyPassedThroughWritesNothing) {
    store(12);
    ASSERT_TRUE(loadControl("QLineEdit"));
    QTest::keyClick(find<QLineEdit>("control"), Qt::Key_Return);
    EXPECT_TRUE(sameValue(stored(), 12LL)); // and not "12"
}

TEST_F(SettingsTest, ARadioButtonStoresItsValue) {
    store(2);
    ASSERT_TRUE(load(
        widget("QWidget", "page", radio("one", "<number>1</number>") + radio("two", "<number>2</number>"))));
    auto *one = find<QRadioButton>("one");
    auto *two = find<QRadioButton>("two");
    EXPECT_FALSE(one->isChecked());
    EXPECT_TRUE(two->isChecked());
    one->click();
    EXPECT_TRUE(sameValue(stored(), 1LL));
    EXPECT_TRUE(one->isChecked());
    EXPECT_FALSE(two->isChecked());
}

TEST_F(SettingsTest, TabComesToTheChosenRadioButtonAlone) {
    ASSERT_TRUE(load(
        widget("QWidget", "page", radio("one", "<number>1</number>") + radio("two", "<number>2</number>"))));
    const auto takesTab = [this](const char *name) {
        return (find<QRadioButton>(name)->focusPolicy() & Qt::TabFocus) != 0;
    };
    for (const int chosen : {2, 1}) {
        store(chosen);
        EXPECT_EQ(takesTab("one"), chosen == 1);
        EXPECT_EQ(takesTab("two"), chosen == 2);
    }
    store(7); // and to one even where none is chosen
    EXPECT_TRUE(takesTab("one") || takesTab("two"));
}

TEST_F(SettingsTest, AValueThatNoRadioButtonHasChoosesNone) {
    ASSERT_TRUE(load(
        widget("QWidget", "page", radio("one", "<number>0</number>") + radio("two", "<string>b</string>"))));
    auto *one = find<QRadioButton>("one");
    auto *two = find<QRadioButton>("two");
    store(QStringLiteral("b"));
    EXPECT_TRUE(two->isChecked());
    store(7);
    EXPECT_FALSE(one->isChecked() || two->isChecked());
    UserDefaults::standard().removeObjectForKey(kKey);
    EXPECT_FALSE(one->isChecked() || two->isChecked());
}

TEST_F(SettingsTest, AControlIsEnabledWhileItsKeyIsTrue) {
    ASSERT_TRUE(load(widget("QPushButton", "push", says("enabledKey", "Key")) +
                     action("item", says("enabledKey", "Key"))));
    EXPECT_FALSE(find<QPushButton>("push")->isEnabled());
    store(true);
    EXPECT_TRUE(find<QPushButton>("push")->isEnabled());
    EXPECT_TRUE(find<QAction>("item")->isEnabled());
}

TEST_F(SettingsTest, AControlThatIsGoneNoLongerListens) {
    ASSERT_TRUE(loadControl("QCheckBox"));
    objects.reset();
    store(true);
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_F(SettingsTest, TheSettingIsWrittenBeforeTheActionIsSent) {
    ASSERT_TRUE(loadControl("QCheckBox", says("action", "owner.press:")));
    bool atPress = false;
    owner.onPress = [&atPress] { atPress = boolValue(stored()); };
    find<QCheckBox>("control")->click();
    EXPECT_TRUE(atPress);
    EXPECT_EQ(owner.senders.size(), 1);
}

TEST_F(SettingsTest, WhatCannotShowASettingSpoilsTheFile) {
    EXPECT_FALSE(loadControl("QLabel"));
    EXPECT_FALSE(loadControl("QRadioButton")); // no value to store
    EXPECT_FALSE(load(widget("QWidget", "c", says("objectClass", "Plain") + says("enabledKey", "Key"))));
    EXPECT_FALSE(complaint.isEmpty());
}

} // namespace
} // namespace barquell::test
