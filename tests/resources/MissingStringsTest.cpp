#include "foundation/Bundle.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

TEST(MissingStringsTest, AMissingCatalogueIsSaidOnceAndKeysStandForThemselves) {
    const LogCapture logged;
    const QString key = QStringLiteral("Authorization Required");
    EXPECT_EQ(Bundle::localizedString(key), key);
    EXPECT_EQ(Bundle::localizedString(key), key);
    EXPECT_EQ(logged.lines.size(), 1);
}

} // namespace
} // namespace barquell::test
