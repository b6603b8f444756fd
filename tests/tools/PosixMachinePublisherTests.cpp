// Publishing on Linux: the exchange by a link, wherever the program is killed, and names that only
// this system has.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "base/PerRun.h"
#include "tests/archive/ZipBytes.h"
#include "tools/PublishCommand.h"

namespace {

namespace fs = std::filesystem;
using testing::AnyOf;
using testing::HasSubstr;
using testing::StartsWith;

using State = std::map<std::string, std::string>;

std::string BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string Car(const std::string& lines) {
  return ZipBytes::Bytes({.members = {{.name = "car.vhc", .contents = lines}}});
}

class NativePublishing : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = (fs::temp_directory_path() / "sk2publishXXXXXX").string();
    scratch = mkdtemp(name.data());
    Put("cars/cricket.zip", Car("skidrun=100\r\n"));
    Put("cars/coach.zip", Car("skidrun=200\r\n"));
    Put("software/versions.txt", "sk2up=1.2.0\n");
    Put("pages/index.html", "<h1>Home</h1>");
  }
  void TearDown() override {
    RunObjects::End();
    fs::remove_all(scratch);
  }

  void Put(const std::string& path, const std::string& bytes) const {
    const fs::path file = scratch / "offer" / path;
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    stream << bytes;
    EXPECT_TRUE(stream.flush()) << file;
  }
  void Change() const {
    Put("cars/cricket.zip", Car("skidrun=150\r\n"));
    Put("cars/rocket.zip", Car("skidrun=999\r\n"));
    fs::remove(scratch / "offer/cars/coach.zip");
    Put("software/versions.txt", "sk2up=1.2.0\nother=1.0.0\n");
  }
  fs::path site() const { return scratch / "site"; }

  struct Told {
    int status = -1;
    std::string text;
  };
  Told Publish() const {
    std::ostringstream told;
    const int status = PublishCommand::Run({(scratch / "offer").string(), site().string()},
                                           {"1.0.0", "none"}, told, told);
    return {status, told.str()};
  }

  // What a web server finds.
  State Served() const {
    State state;
    std::error_code none;
    for (const auto& entry : fs::recursive_directory_iterator(site() / "current", none)) {
      if (entry.is_directory()) continue;
      state[fs::relative(entry.path(), site() / "current").string()] = BytesOf(entry.path());
    }
    return state;
  }
  std::set<std::string> NamesInSite() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(site())) names.insert(entry.path().filename());
    return names;
  }
  void ExpectNothingLeftOver() const {
    const std::string state = fs::read_symlink(site() / "current");
    EXPECT_EQ(NamesInSite(), (std::set<std::string>{"current", state}));
  }

  fs::path scratch;
};

TEST_F(NativePublishing, ExchangesALink) {
  const Told first = Publish();
  EXPECT_EQ(first.status, 0) << first.text;
  EXPECT_EQ(fs::read_symlink(site() / "current"), "state-1.sk2");
  ExpectNothingLeftOver();
  Change();
  EXPECT_EQ(Publish().status, 0);
  EXPECT_EQ(fs::read_symlink(site() / "current"), "state-2.sk2");
  ExpectNothingLeftOver();
  EXPECT_TRUE(Served().contains("orvane/games/sk2/cars/rocket.zip"));
}

TEST_F(NativePublishing, OfWhatHasNotChangedWritesNothing) {
  EXPECT_EQ(Publish().status, 0);
  const auto times = [&] {
    std::map<std::string, fs::file_time_type> all;
    all["."] = fs::last_write_time(site());
    for (const auto& entry : fs::recursive_directory_iterator(
             site(), fs::directory_options::follow_directory_symlink)) {
      all[entry.path()] = fs::last_write_time(entry.path());
    }
    return all;
  };
  const auto before = times();
  const Told again = Publish();
  EXPECT_EQ(again.status, 0);
  EXPECT_THAT(again.text, StartsWith("Nothing has changed"));
  EXPECT_EQ(times(), before);
}

TEST_F(NativePublishing, LeavesWhatIsNotItsOwn) {
  fs::create_directories(site() / "current/somebody");
  const Told told = Publish();
  EXPECT_EQ(told.status, 2);
  EXPECT_TRUE(fs::exists(site() / "current/somebody"));
  fs::remove_all(site() / "current");
  fs::create_directories(scratch / "elsewhere/precious");
  fs::create_directory_symlink(scratch / "elsewhere", site() / "current");
  EXPECT_EQ(Publish().status, 2);
  EXPECT_TRUE(fs::exists(scratch / "elsewhere/precious"));
  fs::remove(site() / "current");
  // A link in what was served, which somebody has put there, is removed and not followed.
  EXPECT_EQ(Publish().status, 0);
  fs::create_directory_symlink(scratch / "elsewhere", site() / "current/link");
  EXPECT_EQ(Publish().status, 0);
  EXPECT_TRUE(fs::exists(scratch / "elsewhere/precious"));
  ExpectNothingLeftOver();
}

TEST_F(NativePublishing, WaitsForNoOtherRunAndDisturbsNone) {
  EXPECT_EQ(Publish().status, 0);
  const State before = Served();
  Change();
  const int other = open(site().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  EXPECT_EQ(flock(other, LOCK_EX), 0);
  const Told told = Publish();
  EXPECT_EQ(told.status, 2);
  EXPECT_THAT(told.text, HasSubstr("site"));
  EXPECT_EQ(Served(), before);
  close(other);
  EXPECT_EQ(Publish().status, 0);
}

TEST_F(NativePublishing, RefusesNamesThatOnlyThisSystemHas) {
  Put("cars/a:b.zip", Car("skidrun=1\r\n"));
  Put("cars/Cricket.zip", Car("skidrun=1\r\n"));
  Put("tracks/caf\xC3\xA9.zip", "");
  const Told told = Publish();
  EXPECT_EQ(told.status, 1);
  EXPECT_THAT(told.text, HasSubstr("/cars/a:b.zip: The name has a \":\""));
  EXPECT_THAT(told.text, HasSubstr("/cars/cricket.zip: It differs from \"Cricket.zip\" in letter"));
  EXPECT_THAT(told.text, HasSubstr("/tracks/caf\xC3\xA9.zip: The name may have only"));
  EXPECT_THAT(told.text, HasSubstr("3 faults"));
  EXPECT_FALSE(fs::exists(site()));
}

TEST_F(NativePublishing, FollowsNoLinkRoundInACircle) {
  fs::create_directory_symlink(scratch / "offer/pages", scratch / "offer/pages/again");
  const Told told = Publish();
  EXPECT_EQ(told.status, 1);
  EXPECT_THAT(told.text, HasSubstr("/pages/again: This is a link to a folder"));
}

// --- Killed ---

// True for a call of the system that changes what is on the disk.
bool ChangesTheDisk(const __ptrace_syscall_info& call) {
  switch (call.entry.nr) {
    case SYS_openat: return (call.entry.args[2] & O_CREAT) != 0;
    case SYS_write:
    case SYS_ftruncate:
    case SYS_utimensat:
    case SYS_fsync:
    case SYS_syncfs:
    case SYS_renameat2:
    case SYS_unlinkat:
    case SYS_symlinkat:
    case SYS_mkdirat:
#ifdef SYS_rename
    case SYS_rename:
    case SYS_unlink:
    case SYS_rmdir:
    case SYS_mkdir:
    case SYS_symlink:
#endif
      return true;
    default: return false;
  }
}

enum class End { Killed, Whole, Untraceable };

// Runs an action in a process of its own, which is killed when it asks for such a call, after that
// many others.
template <class Action>
End RunKilledAt(int calls, const Action& action) {
  const pid_t process = fork();
  if (process == 0) {
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(99);
    raise(SIGSTOP);
    _exit(action());
  }
  int status = 0;
  waitpid(process, &status, 0);
  if (WIFEXITED(status)) return End::Untraceable;
  ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
  for (;;) {
    ptrace(PTRACE_SYSCALL, process, nullptr, nullptr);
    waitpid(process, &status, 0);
    if (WIFEXITED(status)) {
      EXPECT_EQ(WEXITSTATUS(status), 0);
      return End::Whole;
    }
    if (!WIFSTOPPED(status) || WSTOPSIG(status) != (SIGTRAP | 0x80)) continue;
    __ptrace_syscall_info call{};
    ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof call, &call);
    if (call.op != PTRACE_SYSCALL_INFO_ENTRY || !ChangesTheDisk(call) || calls-- > 0) continue;
    kill(process, SIGKILL);
    waitpid(process, &status, 0);
    return End::Killed;
  }
}

TEST_F(NativePublishing, WhereverItIsKilledOneOfTheTwoStatesIsServed) {
  EXPECT_EQ(Publish().status, 0);
  const State before = Served();
  const fs::path kept = scratch / "kept";
  fs::copy(site(), kept, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
  Change();
  EXPECT_EQ(Publish().status, 0);
  const State after = Served();
  EXPECT_NE(before, after);

  int kills = 0;
  bool wasAfter = false;
  for (;; ++kills) {
    fs::remove_all(site());
    fs::copy(kept, site(), fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    const End end = RunKilledAt(kills, [&] { return Publish().status; });
    if (end == End::Untraceable) GTEST_SKIP() << "no process may be traced here";
    const State served = Served();
    EXPECT_THAT(served, AnyOf(before, after)) << "killed at call " << kills;
    // Once the new one is served the old one does not come back.
    EXPECT_FALSE(wasAfter && served == before);
    wasAfter = served == after;
    const Told next = Publish();
    EXPECT_EQ(next.status, 0) << next.text;
    EXPECT_EQ(Served(), after);
    ExpectNothingLeftOver();
    if (end == End::Whole || HasFailure()) break;
  }
  EXPECT_TRUE(wasAfter);
  EXPECT_GT(kills, 50);
}

TEST_F(NativePublishing, WhereverTheFirstRunIsKilledNothingIsServedHalf) {
  EXPECT_EQ(Publish().status, 0);
  const State after = Served();
  for (int kills = 0;; ++kills) {
    fs::remove_all(site());
    const End end = RunKilledAt(kills, [&] { return Publish().status; });
    if (end == End::Untraceable) GTEST_SKIP() << "no process may be traced here";
    EXPECT_THAT(Served(), AnyOf(State(), after)) << "killed at call " << kills;
    EXPECT_EQ(Publish().status, 0);
    EXPECT_EQ(Served(), after);
    ExpectNothingLeftOver();
    if (end == End::Whole || HasFailure()) break;
  }
}

}  // namespace
