#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QString>

#include "platform/bundle.h"

namespace platform {
namespace {

/// The attributes and file actions of one posix_spawn.
class SpawnPlan {
 public:
  SpawnPlan() {
    posix_spawnattr_init(&attributes_);
    posix_spawn_file_actions_init(&actions_);
  }
  ~SpawnPlan() {
    posix_spawn_file_actions_destroy(&actions_);
    posix_spawnattr_destroy(&attributes_);
  }
  SpawnPlan(SpawnPlan const&) = delete;
  SpawnPlan& operator=(SpawnPlan const&) = delete;

  /// Its own session, all signals at their defaults, only /dev/null open and "/" as the working
  /// folder: the program keeps nothing of its starter in use.
  bool Detach() {
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    constexpr short kFlags = POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
    if (posix_spawnattr_setsigmask(&attributes_, &none) != 0 ||
        posix_spawnattr_setsigdefault(&attributes_, &all) != 0 ||
        posix_spawnattr_setflags(&attributes_, kFlags) != 0) {
      return false;
    }
    for (int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
      if (posix_spawn_file_actions_addopen(&actions_, fd, "/dev/null", O_RDWR, 0) != 0) {
        return false;
      }
    }
    return posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1) == 0 &&
           posix_spawn_file_actions_addchdir_np(&actions_, "/") == 0;
  }

  bool Run(QByteArray program) {
    char* const arguments[] = {program.data(), nullptr};
    pid_t ignored;
    return posix_spawn(&ignored, program.constData(), &actions_, &attributes_, arguments,
                       environ) == 0;
  }

 private:
  posix_spawnattr_t attributes_;
  posix_spawn_file_actions_t actions_;
};

}  // namespace

int ForgetBundle(QString const& bundle) {
  QString const tool = QStringLiteral(LARKMOOR_REGISTRATION_TOOL);
  // Without the tool there is no database either.
  if (!QFile::exists(tool)) return 0;
  return QProcess::execute(tool, {QStringLiteral("-u"), bundle});
}

bool OpenBundle(QString const& bundle) {
  SpawnPlan plan;
  return plan.Detach() && plan.Run(QFile::encodeName(bundle + "/Contents/MacOS/larkmoor-drive-ui"));
}

}  // namespace platform
