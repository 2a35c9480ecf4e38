#include "Recorder.h"

#include "foundation/UserDefaults.h"
#include "observing/KeyValueFunctionObserver.h"
#include "support/Place.h"

#include <gmock/gmock.h>

namespace barquell::test {

namespace {

using testing::ElementsAre;

QString key() {
    return QStringLiteral("Volume");
}

QVariantList &heard() {
    static QVariantList values;
    return values;
}

void hear(const QVariant &value) {
    heard().append(value);
}

class KeyValueFunctionObserverTest : public testing::Test {
protected:
    KeyValueFunctionObserverTest() {
        place();
        UserDefaults::standard().addObserver(KeyValueFunctionObserver::cls(), key(), hear);
    }
};

} // namespace

TEST_F(KeyValueFunctionObserverTest, AFunctionHearsEachNewValueAndNilForARemovedOne) {
    UserDefaults::standard().setObject(true, key());
    UserDefaults::standard().removeObjectForKey(key());
    EXPECT_THAT(heard(), ElementsAre(QVariant(true), QVariant()));
}

TEST_F(KeyValueFunctionObserverTest, AFunctionHearsOfSilentWrites) {
    Recorder writer;
    writer.setUserDefaultsValue(true, key());
    EXPECT_THAT(heard(), ElementsAre(QVariant(true)));
}

} // namespace barquell::test
