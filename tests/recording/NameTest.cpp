#include "recording/CleanText.h"

#include "Data.h"

namespace barquell::recording {
namespace {

std::string nameByEvemu(const std::string &name) {
    return readEvemu("N: " + name + "\nI: 0003 0001 0002 0003\n").devices.at(0).description.name;
}

std::string nameByLibinput(const std::string &name) {
    return readLibinputRecord("devices:\n- evdev:\n    name: \"" + name + "\"\n  events:\n")
        .devices.at(0)
        .description.name;
}

struct Name {
    std::string raw;
    std::string clean;
};

class NameIsCleaned : public testing::TestWithParam<Name> {};

TEST_P(NameIsCleaned, ByBothReaders) {
    EXPECT_EQ(cleanName(GetParam().raw), GetParam().clean);
    EXPECT_EQ(nameByEvemu(GetParam().raw), GetParam().clean);
    EXPECT_EQ(nameByLibinput(GetParam().raw), GetParam().clean);
}

INSTANTIATE_TEST_SUITE_P(Names, NameIsCleaned,
                         testing::Values(Name{"", ""}, Name{"A bar", "A bar"},
                                         Name{"Größe ✓ 🖐", "Größe ✓ 🖐"},
                                         Name{"\x1b[2Jx", "?[2Jx"}, Name{"a\x7f", "a?"},
                                         Name{"\xc2\x9b"
                                              "31m",
                                              "?31m"},
                                         Name{"\xff\xfe", "??"}, Name{"a\xc3", "a?"},
                                         Name{"a\xe2\x82z", "a??z"}, Name{"\xc0\xaf", "??"},
                                         Name{"\xe0\x80\xaf", "???"}, Name{"\xed\xa0\x80", "???"},
                                         Name{"\xf4\x90\x80\x80", "????"}, Name{"\xe2\x80\xa8x", "?x"},
                                         Name{"\xef\xbb\xbfx", "?x"}));

TEST(Name, IsCleanedOfWhatYamlEscapes) {
    EXPECT_EQ(nameByLibinput(R"(a\e[2J\n\0\x9b\t)"), "a?[2J????");
}

TEST(Name, IsCutBetweenCharacters) {
    EXPECT_EQ(nameByEvemu(std::string(5000, 'x')), std::string(1000, 'x'));
    EXPECT_EQ(nameByLibinput(std::string(999, 'x') + "üyz"), std::string(999, 'x'));
    EXPECT_EQ(nameByLibinput(std::string(998, 'x') + "üyz"), std::string(998, 'x') + "ü");
}

TEST(Name, KeepsItsSpaces) {
    EXPECT_EQ(nameByEvemu(" two  spaces "), " two  spaces ");
}

TEST(CleanLines, LeavesACharacterThatThePieceCutsForTheNext) {
    std::string clean;
    EXPECT_EQ(appendCleanLines(clean, "a\n\t\xe2\x82", false), 3U);
    EXPECT_EQ(appendCleanLines(clean, "\xe2\x82\xac\x01\r\n", false), 6U);
    EXPECT_EQ(appendCleanLines(clean, "\xe2\x82", true), 2U);
    EXPECT_EQ(clean, "a\n\t€?\r\n??");
}

} // namespace
} // namespace barquell::recording
