#pragma once

#include "applist/AppList.h"
#include "foundation/NotificationCenter.h"
#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

#include <optional>

namespace barquell::test {

inline const QString kListKey = QStringLiteral("Apps");

/// "a b" as [a, b].
inline QStringList words(const char *text) {
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

class AppListFixture : public testing::Test {
protected:
    AppListFixture() {
        UserDefaults::standard().removePersistentDomain();
        NotificationCenter::defaultCenter().addObserver(
            _observer, QStringLiteral("com.vexolith.barquell.app-list.change"),
            [this](const Notification &notification) {
                EXPECT_EQ(notification.object, list ? &*list : nullptr);
                posted.append(notification.userInfo);
                storedWhenPosted = stored();
            });
    }

    /// The list on what is stored.
    AppList &open(const QVariant &value) {
        list.reset(); // or the value would reach it from outside
        store(value);
        return list.emplace(kListKey);
    }
    AppList &openWords(const char *entries) { return open(words(entries)); }

    static void store(const QVariant &value) { UserDefaults::standard().setObject(value, kListKey); }
    static QVariant stored() { return UserDefaults::standard().objectForKey(kListKey); }

    /// The whole list, which is stored so, too.
    QString entries() const {
        QStringList entries;
        for (std::size_t index = 0; index < list->count(); ++index) {
            entries.append((*list)[index]);
        }
        EXPECT_TRUE(stored().toStringList() == entries || posted.isEmpty());
        return entries.join(QLatin1Char(' '));
    }

    /// Of the last notification; nothing where it had no user info.
    std::optional<IndexSet> selection() const {
        const QVariantMap &userInfo = posted.constLast();
        EXPECT_LE(userInfo.size(), 1);
        return userInfo.isEmpty()
                   ? std::nullopt
                   : std::optional(userInfo.value(QStringLiteral("NewSelection")).value<IndexSet>());
    }

    Place &here = place();
    LogCapture logged;
    std::optional<AppList> list;
    QList<QVariantMap> posted;
    QVariant storedWhenPosted;

private:
    QObject _observer;
};

} // namespace barquell::test
