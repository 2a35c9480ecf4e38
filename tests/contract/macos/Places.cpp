#include "contract/ContractPlace.h"
#include "platform/AccessibilityTrust.h"
#include "platform/SettingsStore.h"

#include <QCoreApplication>
#include <QProcess>

namespace barquell::test {

namespace {

/// The system's own tool, in another process.
void runDefaults(const QStringList &arguments) {
    EXPECT_EQ(QProcess::execute(QStringLiteral("/usr/bin/defaults"), arguments), 0);
}

/// This Mac, which main() has made. Its settings are those of the test program, which is no bundle and so has
/// its name for a domain. The permission, the keys and the bar are a person's.
class MacPlace final : public ContractPlace {
public:
    MacPlace() { platform().settingsStore->removeDomain(); }
    ~MacPlace() override {
        platform().settingsStore->watch(nullptr); // it outlives what a test gave it
        platform().settingsStore->removeDomain();
    }
    Q_DISABLE_COPY_MOVE(MacPlace)

    Platform pieces() override { return platform(); }

    void editFromOutside(const QString &key, const QVariant &value) override {
        if (!value.isValid()) {
            runDefaults({QStringLiteral("delete"), _domain, key});
        } else if (value.typeId() == QMetaType::QByteArray) {
            runDefaults({QStringLiteral("write"), _domain, key, QStringLiteral("-data"),
                         QString::fromLatin1(value.toByteArray().toHex())});
        } else {
            runDefaults({QStringLiteral("write"), _domain, key, QStringLiteral("-int"), value.toString()});
        }
    }

    /// Whether it is as asked already.
    bool setTrusted(bool trusted) override {
        return platform().accessibilityTrust->isProcessTrusted() == trusted;
    }
    bool holdModifiers(ModifierFlags /*flags*/) override { return false; }
    bool touch() override { return false; }

private:
    QString _domain = QCoreApplication::applicationName();
};

} // namespace

std::vector<PlaceKind> places() {
    return {simulatedPlace(),
            {"Mac", []() -> std::unique_ptr<ContractPlace> { return std::make_unique<MacPlace>(); }}};
}

} // namespace barquell::test
