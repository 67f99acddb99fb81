// What happens to the whole process: signals, and a standard output that is closed.
#include <fcntl.h>
#include <signal.h>
#include <sys/inotify.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Faults/FaultsTest.h"
#include "Platform/Console.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Tells when a directory gets a file of a name.
class Watch {
 public:
  explicit Watch(const std::filesystem::path& directory) : fd_(inotify_init1(IN_CLOEXEC)) {
    EXPECT_GE(inotify_add_watch(fd_, directory.c_str(), IN_CREATE), 0);
  }
  ~Watch() { close(fd_); }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

  void WaitFor(std::string_view name) {
    alignas(inotify_event) char buffer[4096];
    for (;;) {
      const ssize_t got = read(fd_, buffer, sizeof buffer);
      ASSERT_GT(got, 0);
      for (ssize_t at = 0; at < got;) {
        const auto* event = reinterpret_cast<const inotify_event*>(buffer + at);
        if (event->len > 0 && name == event->name) return;
        at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
      }
    }
  }

 private:
  int fd_;
};

class ProcessTest : public FaultsTest {
 protected:
  // Does something in a process of its own and gives what waiting for it tells.
  template <typename Work>
  static int InAnotherProcess(Work work) {
    const pid_t child = fork();
    if (child == 0) {
      work();
      _exit(0);
    }
    return Wait(child);
  }
  static int Wait(pid_t child) {
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
  }
  // The program itself, with its error output in SORTIE/erreurs and no other.
  pid_t Start(std::vector<std::string> arguments, int out = -1) {
    arguments.insert(arguments.begin(), {TROVEX_CLI, Argument("DISQUE")});
    const std::string errors = Argument("SORTIE/erreurs");
    const pid_t child = fork();
    if (child != 0) return child;
    const int err = open(errors.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(err, STDERR_FILENO);
    if (out >= 0) dup2(out, STDOUT_FILENO);
    if (out < 0) close(STDOUT_FILENO);
    std::vector<char*> raw;
    for (std::string& argument : arguments) raw.push_back(argument.data());
    raw.push_back(nullptr);
    execv(raw[0], raw.data());
    _exit(127);
  }
};

void WriteHalfAFile(Platform& platform, const Text& name) {
  platform.Write(platform.OpenWrite(name), "demi", 4);
}

TEST_F(ProcessTest, ASignalThatEndsTheProcessTakesHalfWrittenFilesAlong) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const int status = InAnotherProcess([&] {
      Platform& platform = disc_.GetPlatform();
      RemoveUnfinishedFilesAtTheEnd();
      const FileHandle whole = platform.OpenWrite(u"D:\\SORTIE\\ENTIER.TXT");
      platform.Write(whole, "entier", 6);
      platform.Close(whole);
      WriteHalfAFile(platform, u"D:\\SORTIE\\A.TXT");
      WriteHalfAFile(platform, u"D:\\SORTIE\\B.TXT");
      raise(signal);
    });
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
    EXPECT_THAT(Names("SORTIE"), ElementsAre("ENTIER.TXT")) << signal;
    EXPECT_EQ(Contents("SORTIE/ENTIER.TXT"), "entier");
  }
}

TEST_F(ProcessTest, BehindALinkTheHalfFileGoesAndTheLinkStays) {
  disc_.File("SORTIE/VRAI.TXT", "avant");
  std::filesystem::create_symlink("VRAI.TXT", disc_.HostPath("SORTIE/LIEN.TXT"));
  InAnotherProcess([&] {
    RemoveUnfinishedFilesAtTheEnd();
    WriteHalfAFile(disc_.GetPlatform(), u"D:\\SORTIE\\LIEN.TXT");
    raise(SIGTERM);
  });
  EXPECT_THAT(Names("SORTIE"), ElementsAre("LIEN.TXT"));
}

TEST_F(ProcessTest, ASignalThatIsIgnoredStaysIgnored) {
  const int status = InAnotherProcess([&] {
    signal(SIGHUP, SIG_IGN);
    RemoveUnfinishedFilesAtTheEnd();
    Platform& platform = disc_.GetPlatform();
    const FileHandle file = platform.OpenWrite(u"D:\\SORTIE\\A.TXT");
    raise(SIGHUP);
    platform.Close(file);
  });
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_THAT(Names("SORTIE"), ElementsAre("A.TXT"));
}

TEST_F(ProcessTest, AnExportThatIsInterruptedLeavesNoHalfPage) {
  for (const int signal : {SIGINT, SIGTERM}) {
    Games(400);
    Watch watch(disc_.HostPath("SORTIE"));
    const pid_t child = Start({"--quiet", "--html", Argument("SORTIE/Fichier.htm")});
    watch.WaitFor("Fichier_donnees.htm");
    kill(child, signal);
    const int status = Wait(child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
    EXPECT_FALSE(Exists("SORTIE/Fichier_tableaux.htm"));
    EXPECT_FALSE(Exists("SORTIE/Fichier_donnees.htm"));
  }
}

TEST_F(ProcessTest, AClosedStandardOutputIsToldAndTheExportsAreWhole) {
  Games(3);
  ASSERT_EQ(Run({"--quiet", "--csv", Argument("SORTIE/whole.csv")}), cli::kDone);
  for (const char* const form : {"--json", "--drive=D"}) {
    const int status = Wait(Start({form, "--csv", Argument("SORTIE/A.csv")}));
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == cli::kRuntimeError) << status;
    EXPECT_EQ(Contents("SORTIE/A.csv"), Contents("SORTIE/whole.csv"));
    EXPECT_THAT(Contents("SORTIE/erreurs"), HasSubstr("trovex-cli: erreur d'exécution "));
    disc_.Remove("SORTIE/A.csv");
  }
}

TEST_F(ProcessTest, AReaderWhoIsGoneIsToldAndTheExportsAreWhole) {
  Games(3);
  ASSERT_EQ(Run({"--quiet", "--csv", Argument("SORTIE/whole.csv")}), cli::kDone);
  int ends[2];
  ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
  close(ends[0]);
  const int status = Wait(Start({"--json", "--csv", Argument("SORTIE/A.csv")}, ends[1]));
  close(ends[1]);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == cli::kRuntimeError) << status;
  EXPECT_EQ(Contents("SORTIE/A.csv"), Contents("SORTIE/whole.csv"));
  EXPECT_THAT(Contents("SORTIE/erreurs"), HasSubstr("trovex-cli: erreur d'exécution 57 : "));
}

TEST_F(ProcessTest, AFullStandardOutputIsTold) {
  const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
  ASSERT_GE(full, 0);
  const int status = Wait(Start({"--json"}, full));
  close(full);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == cli::kRuntimeError) << status;
  EXPECT_THAT(Contents("SORTIE/erreurs"), HasSubstr("trovex-cli: erreur d'exécution 61 : "));
}

}  // namespace
}  // namespace trovex::test
