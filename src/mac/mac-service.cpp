#include "mac/mac-service.h"

#include <signal.h>
#include <unistd.h>

#include <QDir>
#include <QString>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "foundation/file-op.h"
#include "foundation/logger.h"
#include "platform/bundle.h"
#include "service/config.h"

namespace {

constexpr int kTimeoutMs = 10000;
constexpr int kStopProbes = 5;
constexpr unsigned kSecondsBetweenProbes = 1;

int BuildNumber(ustring const& build) { return build.empty() ? 0 : atoi(build.c_str()); }

/// Asks a process to end, polls until it has or a timeout passes, then kills it.
void Terminate(pid_t pid) {
  if (kill(pid, SIGTERM) != 0) {
    if (errno == ESRCH) return;
    LOG_MSG(LEVEL_ERROR, log_component::service(), "[ERROR] mac/mac-service(%d): kill: %s (%d)\n",
            strerror(errno), errno);
  }
  for (int probe = 0; probe < kStopProbes; ++probe) {
    if (kill(pid, 0) != 0 && errno == ESRCH) return;
    sleep(kSecondsBetweenProbes);
  }
  kill(pid, SIGKILL);
}

}  // namespace

MacService::MacService() {
  timeout = kTimeoutMs;
  app_path = Service::GetUserLarkmoorAppInstallPath();
}

MacService::~MacService() = default;

MacService* MacService::GetInstace() {
  static MacService serv;
  return &serv;
}

void MacService::LoadSourceVerInfo() { Service::LoadSourceVersion(); }

void MacService::LoadTargetVerInfo() { Service::LoadTargetVersion(); }

bool MacService::PerUserBinPathExist() {
  ustring const path = app_path + "/" + "Contents/MacOS" + "/" + "larkmoor-drive-ui";
  return access(path.c_str_utf8(), F_OK) == 0;
}

void MacService::PreUpgrade() {
  LoadTargetVersion();
  LoadSourceVersion();
  LOG_MSG(LEVEL_DEBUG, log_component::service(),
          "[DEBUG] mac/mac-service(%d): Source version: ('%s', '%s')\n",
          source_build_version.c_str(), source_icon_overlay_version.c_str());
  LOG_MSG(LEVEL_DEBUG, log_component::service(),
          "[DEBUG] mac/mac-service(%d): Target version: ('%s', '%s')\n",
          target_build_version.c_str(), target_icon_overlay_version.c_str());
}

bool MacService::IsNeedUpgrade() {
  int const source = BuildNumber(source_build_version);
  int const target = BuildNumber(target_build_version);
  LOG_MSG(LEVEL_DEBUG, log_component::service(),
          "[DEBUG] mac/mac-service(%d): source version = %d, target version = %d\n", source,
          target);
  bool const installed = PerUserBinPathExist();
  return target > source || !installed;
}

void MacService::StopService() {
  ustring const pid_file = Service::GetUserLarkmoorInstallPath() + "/ui.pid";
  if (!IsFileExist(pid_file, false)) {
    LOG_MSG(LEVEL_DEBUG, log_component::service(),
            "[DEBUG] mac/mac-service(%d): pid file '%s' does not exist, no need to terminate\n",
            pid_file.c_str());
    return;
  }
  Config config;
  if (config.read(pid_file) < 0) {
    LOG_MSG(LEVEL_NOTE, log_component::service(),
            "[NOTE] mac/mac-service(%d): Failed to read pid file '%s', not exist ?\n",
            pid_file.c_str());
    return;
  }
  ustring const pid = config["pid"];
  if (pid.empty()) {
    LOG_MSG(LEVEL_DEBUG, log_component::service(),
            "[DEBUG] mac/mac-service(%d): pid file '%s' holds no pid, no need to terminate\n",
            pid_file.c_str());
    return;
  }
  Terminate(static_cast<pid_t>(atol(pid.c_str())));
}

int MacService::HandlePackageUpgrade() {
  // Before a first installation, no client of ours can be running.
  if (PerUserBinPathExist()) {
    LOG_MSG(LEVEL_DEBUG, log_component::service(),
            "[DEBUG] mac/mac-service(%d): local appdata exist\n");
    StopService();
  }
  return PrepareUserEnv();
}

int MacService::LaunchPerUserBin() {
  QString const bundle = QDir::homePath() + "/.Larkmoor/Larkmoor.app";
  if (platform::ForgetBundle(bundle) != 0) {
    LOG_MSG(LEVEL_ERROR, log_component::service(),
            "[ERROR] mac/mac-service(%d): Cannot unregister bundle, %s",
            bundle.toUtf8().constData());
  }
  return platform::OpenBundle(bundle) ? 0 : -1;
}

void MacService::PostUpgrade() {
  if (LaunchPerUserBin() < 0) {
    LOG_MSG(LEVEL_ERROR, log_component::service(),
            "[ERROR] mac/mac-service(%d): Failed to launch Larkmoor UI\n");
  }
}
