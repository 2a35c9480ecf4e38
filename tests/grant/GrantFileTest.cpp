#include "platform/linux/grant/GrantFile.h"

#include <gmock/gmock.h>
#include <rapidcheck.h>

namespace barquell::test {

using namespace grant;
using testing::Eq;
using testing::Optional;
using namespace std::string_literals;

TEST(GrantFile, WhatIsWrittenIsRead) {
    const auto text = grantText("jane.doe-1");
    EXPECT_THAT(text, Optional(Eq("barquell grant 1\nuser jane.doe-1\n"s)));
    EXPECT_THAT(grantedName(*text), Optional(Eq("jane.doe-1")));
}

TEST(GrantFile, AnythingElseIsNoGrant) {
    for (const std::string &text : {""s,
                                    "\n"s,
                                    "barquell grant 1\n"s,
                                    "barquell grant 1\nuser"s,
                                    "barquell grant 1\nuser "s,
                                    "barquell grant 1\nuser \n"s,
                                    "barquell grant 1\nuser jane"s,
                                    "barquell grant 1\nuser jane\n\n"s,
                                    "barquell grant 1\nuser jane\nuser joe\n"s,
                                    "barquell grant 1\nuser jane \n"s,
                                    "barquell grant 1\nuser  jane\n"s,
                                    "barquell grant 1\r\nuser jane\r\n"s,
                                    "barquell grant 2\nuser jane\n"s,
                                    "Barquell grant 1\nuser jane\n"s,
                                    " barquell grant 1\nuser jane\n"s,
                                    "user jane\nbarquell grant 1\n"s,
                                    "barquell grant 1\nuser ja\0ne\n"s,
                                    "barquell grant 1\nuser jane\0\n"s,
                                    "barquell grant 1\nuser j\xc3\xa4ne\n"s,
                                    "barquell grant 1\nuser jane:x\n"s,
                                    "barquell grant 1\nuser "s + std::string(600, 'a') + "\n"}) {
        EXPECT_FALSE(grantedName(text)) << testing::PrintToString(text);
    }
}

TEST(GrantFile, ANameThatItCannotCarryIsNotWritten) {
    for (const std::string &name : {""s, "a b"s, "a\nb"s, "\x7f"s, std::string(600, 'a')}) {
        EXPECT_FALSE(grantText(name)) << testing::PrintToString(name);
    }
}

TEST(GrantFile, AnyBytesAreAGrantOnlyWhereTheyAreItsText) {
    EXPECT_TRUE(rc::check([] {
        std::string text = *grantText("jane");
        // A whole grant with bytes changed, cut out or put in, or bytes alone.
        const auto edits = *rc::gen::container<std::vector<std::pair<std::uint8_t, char>>>(
            rc::gen::pair(rc::gen::arbitrary<std::uint8_t>(), rc::gen::arbitrary<char>()));
        for (const auto &[where, byte] : edits) {
            const std::size_t at = text.empty() ? 0 : where % text.size();
            switch (where % 3) {
            case 0:
                text.insert(at, 1, byte);
                break;
            case 1:
                text.erase(at, 1);
                break;
            default:
                text.replace(at, 1, 1, byte);
            }
        }
        const auto name = grantedName(text);
        const bool isItsText = !name || grantText(*name) == text; // RC_ASSERT evaluates both sides
        RC_ASSERT(isItsText);
        RC_ASSERT(!grantedName(*rc::gen::arbitrary<std::string>()));
    }));
}

} // namespace barquell::test
