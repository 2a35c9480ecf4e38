#pragma once

#include "platform/ModifierFlags.h"
#include "platform/Platform.h"

#include <gmock/gmock.h>

#include <QString>
#include <QVariant>

#include <memory>
#include <ostream>
#include <vector>

namespace barquell::test {

/// A place that the contracts are tried on, and the hands that do there what no interface can. Whatever it
/// keeps it keeps apart from this user's own.
class ContractPlace {
public:
    ContractPlace() = default;
    virtual ~ContractPlace() = default;
    Q_DISABLE_COPY_MOVE(ContractPlace)

    /// The place; what it lacks is nullptr.
    virtual Platform pieces() = 0;

    /// Another program writes a setting of the same domain; an invalid value removes it.
    virtual void editFromOutside(const QString &key, const QVariant &value) = 0;

    /// The user gives the permission or takes it away; false where only a person can.
    virtual bool setTrusted(bool trusted) = 0;

    /// These modifier keys are held from now on; false where only a person can.
    virtual bool holdModifiers(ModifierFlags flags) = 0;

    /// A finger lies on the bar for one more frame, which the taps decide about; false where only a person
    /// can.
    virtual bool touch() = 0;
};

struct PlaceKind {
    const char *name;
    std::unique_ptr<ContractPlace> (*make)();

    friend std::ostream &operator<<(std::ostream &stream, const PlaceKind &kind) {
        return stream << kind.name;
    }
};

/// The simulated one.
PlaceKind simulatedPlace();

/// Those that can be tried on this system, the simulated one first.
std::vector<PlaceKind> places();

inline std::string placeName(const testing::TestParamInfo<PlaceKind> &info) {
    return info.param.name;
}

/// A test of one interface on each place that has it.
class Contract : public testing::TestWithParam<PlaceKind> {
protected:
    std::unique_ptr<ContractPlace> place = GetParam().make();
    Platform pieces = place->pieces();
};

} // namespace barquell::test

// NOLINTBEGIN(cppcoreguidelines-macro-usage): what they do only a macro can
/// Ends a test on a place without this piece of a Platform.
#define NEEDS(piece)                                                                                         \
    if (!pieces.piece)                                                                                       \
    GTEST_SKIP() << "this place has no " #piece

/// Ends a test where only a person could do this.
#define NEEDS_HAND(done)                                                                                     \
    if (!(done))                                                                                             \
    GTEST_SKIP() << "only a person can do this here: " #done

#define ON_EVERY_PLACE(suite) INSTANTIATE_TEST_SUITE_P(Places, suite, testing::ValuesIn(places()), placeName)
// NOLINTEND(cppcoreguidelines-macro-usage)
