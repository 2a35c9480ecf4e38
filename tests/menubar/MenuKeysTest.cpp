#include "menubar/MenuKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

/// A menu of two items, the first without a key.
class MenuKeysTest : public testing::Test {
protected:
    MenuKeysTest() {
        for (const char *title : {"plain", "keyed"}) {
            QAction *item = menu.addAction(QString::fromLatin1(title));
            QObject::connect(item, &QAction::triggered,
                             [this, item] { chosen.push_back(item->text().toStdString()); });
        }
        menu.actions().last()->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_B));
    }

    /// True where the key went no further.
    bool press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        return keys.eventFilter(&menu, &event);
    }

    QMenu menu;
    MenuKeys keys{menu};
    std::vector<std::string> chosen;
};

} // namespace

TEST_F(MenuKeysTest, AKeyChoosesTheItemThatShowsIt) {
    EXPECT_TRUE(press(Qt::Key_B, Qt::ControlModifier));
    EXPECT_TRUE(press(Qt::Key_B, Qt::ControlModifier | Qt::KeypadModifier));
    EXPECT_FALSE(press(Qt::Key_B));
    EXPECT_THAT(chosen, testing::ElementsAre("keyed", "keyed"));
}

TEST_F(MenuKeysTest, AnItemThatCannotBeChosenHasNoKey) {
    menu.actions().last()->setEnabled(false);
    EXPECT_FALSE(press(Qt::Key_B, Qt::ControlModifier));
    EXPECT_THAT(chosen, testing::IsEmpty());
}

TEST_F(MenuKeysTest, AKeyThatQtHasNoNameForChoosesNothing) {
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::KeypadModifier),
          Qt::KeyboardModifiers(Qt::ControlModifier)}) {
        EXPECT_FALSE(press(0, modifiers));
        EXPECT_FALSE(press(Qt::Key_unknown, modifiers));
    }
    EXPECT_THAT(chosen, testing::IsEmpty());
}

} // namespace barquell::test
