// What others may lay into a folder, and what becomes of it.

#include "limiter/files/folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include "limiter/files/instance_lock.h"
#include "limiter/support/ordinary_user.h"
#include "support/program.h"
#include "support/started.h"
#include "support/temporary_folder.h"

namespace quelby::limiter {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Optional;
using testing::UnorderedElementsAre;

class FolderTest : public testing::Test {
protected:
    FolderTest() {
        fs::permissions(outer.path(), fs::perms(0755));
        fs::permissions(outer.write("secret", "the secret"), fs::perms(0600));
    }

    [[nodiscard]] fs::path at(const char* name) const { return path / name; }

    [[nodiscard]] std::string content(const char* name) const {
        return outer.read(fs::path("shared") / name);
    }

    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : fs::directory_iterator(path)) {
            found.push_back(entry.path().filename());
        }
        return found;
    }

    [[nodiscard]] bool replace(std::string_view text) const {
        return folder.replace("file", text, readableFile, Durability::afterCrash);
    }

    [[nodiscard]] static unsigned modeOf(const fs::path& file) {
        return static_cast<unsigned>(fs::status(file).permissions());
    }

    TemporaryFolder outer;
    fs::path path = outer.path() / "shared";
    fs::path secret = outer.path() / "secret";
    Folder folder = *Folder::openShared(path);
};

TEST_F(FolderTest, IsMadeForEverybodyWhateverTheUmask) {
    const auto former = ::umask(0077);
    const auto made = Folder::openShared(outer.path() / "a" / "b");
    ::umask(former);
    ASSERT_TRUE(made);
    EXPECT_EQ(modeOf(outer.path() / "a" / "b"), 0777U);
    ASSERT_TRUE(Folder::openOwn(outer.path() / "own"));
    EXPECT_EQ(modeOf(outer.path() / "own"), 0700U);
}

TEST_F(FolderTest, ThatIsThereKeepsItsModeUnlessItIsTheHelpersOwn) {
    fs::permissions(path, fs::perms(0750));
    ASSERT_TRUE(Folder::openShared(path));
    EXPECT_EQ(modeOf(path), 0750U);
    EXPECT_TRUE(folder.openToEverybody());
    EXPECT_EQ(modeOf(path), 0777U);
    ASSERT_TRUE(Folder::openOwn(path));
    EXPECT_EQ(modeOf(path), 0700U);
}

TEST_F(FolderTest, IsNotReachedThroughALink) {
    fs::create_directory_symlink(path, outer.path() / "link");
    const auto linked = Folder::openOwn(outer.path() / "link");
    ASSERT_FALSE(linked);
    EXPECT_THAT(linked.error().sentence,
                HasSubstr("cannot use the folder " + (outer.path() / "link").string()));
}

TEST_F(FolderTest, OfAnotherUserIsNoneOfTheHelpersOwn) {
    if (::geteuid() != 0) { // nobody else can make what is tested here
        GTEST_SKIP() << "only root can give a folder away";
    }
    const auto theirs = outer.path() / "theirs";
    fs::create_directory(theirs);
    ASSERT_EQ(::chown(theirs.c_str(), 65534, 65534), 0);
    const auto opened = Folder::openOwn(theirs);
    ASSERT_FALSE(opened);
    EXPECT_THAT(opened.error().sentence, HasSubstr("it belongs to another user"));
}

TEST_F(FolderTest, ReadsRegularFilesUpToTheirBound) {
    EXPECT_EQ(folder.read("file"), std::nullopt);
    outer.write("shared/file", "text");
    EXPECT_THAT(folder.read("file"), Optional(std::string("text")));
    outer.write("shared/file", std::string(Folder::longestFile, 'x'));
    EXPECT_THAT(folder.read("file"), Optional(std::string(Folder::longestFile, 'x')));
    outer.write("shared/file", std::string(Folder::longestFile + 1, 'x'));
    EXPECT_EQ(folder.read("file"), std::nullopt);
}

TEST_F(FolderTest, FollowsNoLinkWhenItReads) {
    ASSERT_TRUE(asOrdinaryUser([&] { return ::symlink(secret.c_str(), at("file").c_str()) == 0; }));
    EXPECT_EQ(folder.read("file"), std::nullopt);
}

TEST_F(FolderTest, FollowsNoLinkWhenItWrites) {
    ASSERT_TRUE(asOrdinaryUser([&] { return ::symlink(secret.c_str(), at("file").c_str()) == 0; }));
    EXPECT_TRUE(replace("new"));
    EXPECT_EQ(content("file"), "new");
    EXPECT_FALSE(fs::is_symlink(at("file")));
    EXPECT_EQ(outer.read("secret"), "the secret");
}

TEST_F(FolderTest, WritesNothingThroughAHardLink) {
    fs::create_hard_link(secret, at("file"));
    EXPECT_TRUE(replace("new"));
    ASSERT_TRUE(folder.exchange("file", "newer", everybodysFile));
    EXPECT_EQ(outer.read("secret"), "the secret");
    EXPECT_EQ(modeOf(secret), 0600U);
}

TEST_F(FolderTest, NeverWaitsForAPipe) {
    ASSERT_TRUE(asOrdinaryUser([&] { return ::mkfifo(at("file").c_str(), 0666) == 0; }));
    EXPECT_EQ(folder.read("file"), std::nullopt);
    EXPECT_TRUE(replace("new"));
    EXPECT_EQ(content("file"), "new");
}

TEST_F(FolderTest, NeverWaitsForAFileThatIsLeased) {
    outer.write("shared/file", "text");
    fs::permissions(at("file"), fs::perms(0666));
    const FileDescriptor leased(::open(at("file").c_str(), O_RDWR | O_CLOEXEC));
    std::signal(SIGIO, SIG_IGN);
    if (::fcntl(leased.number(), F_SETLEASE, F_WRLCK) !=
        0) { // as on network file systems; nothing to wait for
        GTEST_SKIP() << "this file system has no leases";
    }
    EXPECT_EQ(folder.read("file"), std::nullopt);
    ::fcntl(leased.number(), F_SETLEASE, F_UNLCK);
    EXPECT_THAT(folder.read("file"), Optional(std::string("text")));
}

TEST_F(FolderTest, PassesOverADirectoryAndReplacesNone) {
    ASSERT_TRUE(asOrdinaryUser([&] {
        return ::mkdir(at("file").c_str(), 0777) == 0 && ::mkdir((at("file") / "within").c_str(), 0777) == 0;
    }));
    EXPECT_EQ(folder.read("file"), std::nullopt);
    EXPECT_FALSE(replace("new"));
    EXPECT_THAT(names(), UnorderedElementsAre("file")); // and leaves nothing behind
}

TEST_F(FolderTest, ReadsNothingOfAFileWithoutEnd) {
    outer.write("shared/file", "{}");
    fs::resize_file(at("file"), std::uintmax_t{1} << 40);
    EXPECT_EQ(folder.read("file"), std::nullopt);
}

TEST_F(FolderTest, ReadsNothingThatIsMountedOverAName) {
    outer.write("shared/file", "text");
    const pid_t process = started(::fork());
    if (process == 0) {
        constexpr int noRight = 2;
        if (::unshare(CLONE_NEWNS) != 0 || ::mount("", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount(secret.c_str(), at("file").c_str(), nullptr, MS_BIND, nullptr) != 0) {
            ::_exit(noRight);
        }
        const auto inside = Folder::openShared(path);
        ::_exit(inside && !inside->read("file") && !inside->replace("file", "", 0644, Durability::afterCrash)
                    ? 0
                    : 1);
    }
    const int status = exitStatusOf(process);
    if (status == 2) { // containers and ordinary users have no right to mount
        GTEST_SKIP() << "nothing can be mounted here";
    }
    EXPECT_EQ(status, 0);
    EXPECT_EQ(outer.read("secret"), "the secret");
}

TEST_F(FolderTest, LeavesAFileThatCannotBeReplaced) {
    outer.write("shared/file", "text");
    const FileDescriptor file(::open(at("file").c_str(), O_RDONLY | O_CLOEXEC));
    int flags = 0;
    ::ioctl(file.number(), FS_IOC_GETFLAGS, &flags);
    int immutable = flags | FS_IMMUTABLE_FL;
    if (::ioctl(file.number(), FS_IOC_SETFLAGS, &immutable) != 0) { // tmpfs has no such flag; it takes root
        GTEST_SKIP() << "no file can be made immutable here";
    }
    EXPECT_FALSE(replace("new"));
    EXPECT_FALSE(folder.exchange("file", "new", everybodysFile));
    EXPECT_THAT(folder.read("file"), Optional(std::string("text")));
    EXPECT_THAT(names(), UnorderedElementsAre("file"));
    ::ioctl(file.number(), FS_IOC_SETFLAGS, &flags);
}

TEST_F(FolderTest, KeepsTheOldFileWhereTheDiskIsFull) {
    const pid_t process = started(::fork());
    if (process == 0) {
        constexpr int noRight = 2;
        if (::unshare(CLONE_NEWNS) != 0 || ::mount("", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("tmpfs", path.c_str(), "tmpfs", 0, "size=16k,mode=0777") != 0) {
            ::_exit(noRight);
        }
        const auto small = Folder::openShared(path);
        const bool before = small->replace("file", "old", readableFile, Durability::afterCrash);
        const bool filled = asOrdinaryUser([&] {
            const FileDescriptor filler(::open(at("filler").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666));
            while (::write(filler.number(), "0123456789abcdef", 16) > 0) {
            }
            return true;
        });
        const bool during = small->replace("file", "new", readableFile, Durability::afterCrash);
        const bool kept = small->read("file") == "old" && names().size() == 2;
        fs::remove(at("filler"));
        const bool after = small->replace("file", "new", readableFile, Durability::afterCrash);
        ::_exit(before && filled && !during && kept && after ? 0 : 1);
    }
    const int status = exitStatusOf(process);
    if (status == 2) { // containers and ordinary users have no right to mount
        GTEST_SKIP() << "nothing can be mounted here";
    }
    EXPECT_EQ(status, 0);
}

TEST_F(FolderTest, HandsOverWhatItTakesTheExchangedFilesPlace) {
    outer.write("shared/file", "theirs");
    const auto displaced = folder.exchange("file", "ours", everybodysFile);
    ASSERT_TRUE(displaced);
    EXPECT_EQ(displaced->content, "theirs");
    EXPECT_EQ(content("file"), "ours");
    EXPECT_EQ(modeOf(at("file")), 0666U);
    EXPECT_EQ(names().size(), 2U);
    EXPECT_THAT(folder.leftovers(), testing::ElementsAre("theirs")); // not lost before it is discarded
    folder.discard(*displaced);
    EXPECT_THAT(names(), UnorderedElementsAre("file"));
    EXPECT_FALSE(folder.exchange("missing", "ours", everybodysFile));
    EXPECT_THAT(names(), UnorderedElementsAre("file"));
}

TEST_F(FolderTest, TakesAwayWhatASuddenEndLeftBehind) {
    outer.write("shared/.pwr_limiter-0123", "half a te");
    outer.write("shared/config.json", "{}");
    fs::create_directories(at(".pwr_limiter-4567") / "within"); // not ours, and not in the way
    fs::create_symlink(secret, at(".pwr_limiter-89ab"));
    folder.removeLeftovers();
    EXPECT_THAT(names(), UnorderedElementsAre("config.json", ".pwr_limiter-4567"));
    EXPECT_EQ(outer.read("secret"), "the secret");
    EXPECT_TRUE(replace("new"));
}

TEST_F(FolderTest, KnowsWhenItIsGone) {
    EXPECT_FALSE(folder.isGone());
    fs::remove(path);
    EXPECT_TRUE(folder.isGone());
    EXPECT_FALSE(replace("new"));
    fs::create_directory(path);
    EXPECT_TRUE(folder.isGone()); // that is another one
}

TEST_F(FolderTest, IsNotLockedThroughALink) {
    fs::create_symlink("elsewhere", path / "lock");
    const auto lock = InstanceLock::take(folder);
    ASSERT_FALSE(lock);
    EXPECT_EQ(lock.error().sentence.rfind("cannot lock its own folder: ", 0), 0U);
    EXPECT_FALSE(fs::exists(path / "elsewhere"));
}

TEST_F(FolderTest, IsLockedForOneHelper) {
    auto first = InstanceLock::take(folder);
    ASSERT_TRUE(first);
    const auto second = InstanceLock::take(folder);
    ASSERT_FALSE(second);
    EXPECT_EQ(second.error().sentence, "another pwr_limiter is at work already");
    first = tl::make_unexpected(Problem{});
    EXPECT_TRUE(InstanceLock::take(folder));
}

} // namespace
} // namespace quelby::limiter
