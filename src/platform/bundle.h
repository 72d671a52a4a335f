#pragma once

class QString;

/// Application bundles and the desktop's launch database. Any thread; both functions take the
/// bundle's path.
namespace platform {

/// Unregisters the bundle from the launch database and waits until that is done. Returns 0 on
/// success or if the system has no such database, anything else if the registration tool failed,
/// crashed or couldn't be started.
int ForgetBundle(QString const& bundle);

/// Spawns the bundle's program as an independent process without arguments, which inherits no
/// descriptor and outlives us. Returns whether the start could be requested; what becomes of the
/// program isn't tracked.
bool OpenBundle(QString const& bundle);

}  // namespace platform
