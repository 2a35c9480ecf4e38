#include "platform/linux/grant/GrantFolder.h"
#include "platform/linux/grant/GrantFile.h"

#include <gmock/gmock.h>
#include <rapidcheck.h>

#include <filesystem>
#include <fstream>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace barquell::test {

using namespace grant;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr uid_t kNobodyHere = 4'123'456'789; // no account has it

class GrantFolderTest : public testing::Test {
protected:
    GrantFolderTest() {
        std::string name = (std::filesystem::temp_directory_path() / "grants-XXXXXX").string();
        home = ::mkdtemp(name.data());
        grants = GrantFolder(home / "lib" / "grants", ::geteuid());
        file = home / "lib" / "grants" / std::to_string(user);
    }
    void TearDown() override { std::filesystem::remove_all(home); }

    void write(std::string_view text) const { std::ofstream(file) << text; }
    std::string content() const {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    static std::string ownName() { return ::getpwuid(::geteuid())->pw_name; }

    void expectInvalid(std::string_view problem) const {
        const Reading reading = grants.read(user);
        EXPECT_EQ(reading.state, State::Invalid);
        EXPECT_EQ(reading.problem, problem);
    }

    const uid_t user = ::geteuid();
    std::filesystem::path home;
    GrantFolder grants;
    std::filesystem::path file;
};

mode_t modeOf(const std::filesystem::path &path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777U;
}

} // namespace

TEST_F(GrantFolderTest, WithoutAFolderThereIsNoGrant) {
    EXPECT_EQ(grants.read(user).state, State::None);
    EXPECT_THAT(grants.withdraw(user), IsEmpty());
}

TEST_F(GrantFolderTest, WhatIsGivenHoldsUntilItIsWithdrawn) {
    const mode_t before = ::umask(077);
    EXPECT_THAT(grants.give(user), IsEmpty());
    ::umask(before);
    EXPECT_EQ(grants.read(user).state, State::Held);
    EXPECT_EQ(modeOf(file), 0644U);
    EXPECT_EQ(modeOf(file.parent_path()), 0755U);
    EXPECT_THAT(grants.give(user), IsEmpty()) << "once more";
    EXPECT_THAT(grants.withdraw(user), IsEmpty());
    EXPECT_EQ(grants.read(user).state, State::None);
    EXPECT_THAT(grants.withdraw(user), IsEmpty()) << "once more";
    EXPECT_TRUE(std::filesystem::is_empty(file.parent_path()));
}

TEST_F(GrantFolderTest, AUserWhoIsDeletedHasNoGrantAndIsGivenNone) {
    EXPECT_THAT(grants.give(kNobodyHere), HasSubstr("has no name"));
    ASSERT_THAT(grants.make(), IsEmpty());
    file = file.parent_path() / std::to_string(kNobodyHere);
    write(*grantText("ghost"));
    EXPECT_EQ(grants.read(kNobodyHere).problem, "its grant names somebody else");
    EXPECT_THAT(grants.withdraw(kNobodyHere), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(GrantFolderTest, ANumberThatWasGivenToSomebodyElseIsNotGrantedTo) {
    ASSERT_THAT(grants.make(), IsEmpty());
    write(*grantText(ownName() + "x"));
    expectInvalid("its grant names somebody else");
    write(*grantText(ownName()));
    EXPECT_EQ(grants.read(user).state, State::Held);
}

TEST_F(GrantFolderTest, OnlyASmallRegularFileIsAGrant) {
    ASSERT_THAT(grants.make(), IsEmpty());
    write("");
    expectInvalid("its grant means nothing");
    write(std::string(kMaximumSize + 1, 'a'));
    expectInvalid("its grant is too large");
    std::filesystem::resize_file(file, std::uintmax_t{1} << 40U);
    expectInvalid("its grant is too large");
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    expectInvalid("its grant is no regular file");
    EXPECT_THAT(grants.withdraw(user), HasSubstr(file.string()));
    std::filesystem::remove(file);
    ASSERT_EQ(::mkfifo(file.c_str(), 0644), 0);
    expectInvalid("its grant is no regular file");
    std::filesystem::remove(file);
    const auto elsewhere = home / "elsewhere";
    std::ofstream(elsewhere) << *grantText(ownName());
    std::filesystem::create_symlink(elsewhere, file);
    expectInvalid("its grant is no regular file");
    std::filesystem::remove(file);
    std::filesystem::create_symlink(home / "nowhere", file);
    expectInvalid("its grant is no regular file");
}

TEST_F(GrantFolderTest, WhatLiesInItsPlaceIsReplacedAndNotFollowed) {
    ASSERT_THAT(grants.make(), IsEmpty());
    const auto elsewhere = home / "elsewhere";
    std::ofstream(elsewhere) << "precious";
    std::filesystem::create_symlink(elsewhere, file);
    std::filesystem::create_symlink(elsewhere, file.string() + ".new");
    EXPECT_THAT(grants.give(user), IsEmpty());
    EXPECT_EQ(grants.read(user).state, State::Held);
    EXPECT_EQ(std::filesystem::file_size(elsewhere), 8U);
}

TEST_F(GrantFolderTest, AFileThatOthersMayWriteOrOwnIsNoGrant) {
    ASSERT_THAT(grants.give(user), IsEmpty());
    std::filesystem::permissions(file, std::filesystem::perms::group_write,
                                 std::filesystem::perm_options::add);
    expectInvalid("its grant can be written by others");
    std::filesystem::permissions(file, std::filesystem::perms::group_write,
                                 std::filesystem::perm_options::remove);
    const GrantFolder ofAnother(grants.path(), ::geteuid() + 1);
    EXPECT_EQ(ofAnother.read(user).problem, "its grant is not root's");
}

TEST_F(GrantFolderTest, AFolderThatCannotBeMadeIsSaid) {
    std::ofstream(home / "lib") << "in the way";
    EXPECT_THAT(grants.give(user), HasSubstr((home / "lib").string()));
    EXPECT_EQ(grants.read(user).state, State::None);
}

TEST_F(GrantFolderTest, AnyBytesInTheFileAreReadOrSaidToMeanNothing) {
    ASSERT_THAT(grants.make(), IsEmpty());
    const std::string whole = *grantText(ownName());
    EXPECT_TRUE(rc::check([&] {
        write(*rc::gen::arbitrary<std::string>());
        const Reading reading = grants.read(user);
        RC_ASSERT(reading.state == State::Invalid);
        RC_ASSERT(!reading.problem.empty());
        std::string nearly = whole;
        nearly.at(*rc::gen::inRange<std::size_t>(0, whole.size())) ^= *rc::gen::inRange<char>(1, 127);
        write(nearly);
        RC_ASSERT(grants.read(user).state == State::Invalid);
    }));
    write(whole);
    EXPECT_EQ(grants.read(user).state, State::Held);
    EXPECT_EQ(content(), whole);
}

TEST(UserNamed, FindsAnAccountByItsName) {
    EXPECT_EQ(userNamed("root"), std::optional<uid_t>(0));
    EXPECT_EQ(userNamed("no such user"), std::nullopt);
    EXPECT_EQ(userNamed(""), std::nullopt);
}

} // namespace barquell::test
