// A status item, whoever shows it; nobody need show it.

#include "platform/StatusBar.h"
#include "contract/ContractPlace.h"
#include "support/LogCapture.h"
#include "support/Wait.h"

#include <QIcon>
#include <QMenu>
#include <QPixmap>

namespace barquell::test {
namespace {

using testing::ElementsAre;

class StatusBarContract : public Contract {
protected:
    LogCapture lines;
    std::unique_ptr<StatusBarItem> item = pieces.statusBar->createItem();
};

TEST_P(StatusBarContract, TheVisibilityIsWhatWasSetAndIsTold) {
    std::vector<bool> told;
    item->setAutosaveName(QStringLiteral("ContractItem"));
    item->setRemovalAllowed(true);
    item->setVisible(true);
    EXPECT_TRUE(item->isVisible());
    item->watchVisibility([&told](bool visible) { told.push_back(visible); });
    item->setVisible(false);
    EXPECT_FALSE(item->isVisible());
    item->setVisible(true);
    EXPECT_TRUE(item->isVisible());
    EXPECT_TRUE(waitFor([&told] { return told.size() == 2; }));
    EXPECT_THAT(told, ElementsAre(false, true));
}

TEST_P(StatusBarContract, WhoHearsThatItIsInvisibleMayDropIt) {
    item->setVisible(true);
    item->watchVisibility([this](bool) { item.reset(); });
    StatusBarItem *const one = item.get();
    one->setVisible(false);
    EXPECT_TRUE(waitFor([this] { return item == nullptr; }));
}

TEST_P(StatusBarContract, EveryLookIsTakenAndTakenAway) {
    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::black);
    item->setImage(QIcon(pixmap));
    item->setImage(QIcon());
    item->setToolTip(QStringLiteral("tip"));
    item->setToolTip(QString());
    item->setOpacity(0.5);
    item->setOpacity(1.0);
    item->setClickHandler([](const StatusItemClick &) { return true; });
    item->setClickHandler(nullptr);
    EXPECT_TRUE(lines.lines.isEmpty() || !pieces.statusBar->hasHost());
}

TEST_P(StatusBarContract, AMenuMayGoBeforeTheItem) {
    auto menu = std::make_unique<QMenu>();
    item->setMenu(menu.get());
    item->setMenu(nullptr);
    menu.reset();
    item->setVisible(false);
    EXPECT_FALSE(item->isVisible());
}

TEST_P(StatusBarContract, ItemsComeAndGoByThemselves) {
    const auto another = pieces.statusBar->createItem();
    item.reset();
    another->setVisible(true);
    EXPECT_TRUE(another->isVisible());
}

ON_EVERY_PLACE(StatusBarContract);

} // namespace
} // namespace barquell::test
