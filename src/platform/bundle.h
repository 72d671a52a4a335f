#pragma once

class QString;

/// Application bundles and the desktop's database of them. Any thread; both take the bundle's path.
namespace platform {

/// Takes the bundle out of the launch database and waits for it. 0 when it is out or when the
/// system has no such database, anything else when the registration tool failed, crashed or could
/// not be started.
int ForgetBundle(QString const& bundle);

/// Starts the bundle's program as a process of its own, which gets no argument and no open
/// descriptor of ours and goes on when we end. True when the start could be requested; what becomes
/// of the program is not followed.
bool OpenBundle(QString const& bundle);

}  // namespace platform
