// Sends a window the message of its close button.
//
//     close-window WINDOW_NUMBER
#include <X11/Xlib.h>

#include <cstdlib>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  Display* const display = XOpenDisplay(nullptr);
  if (display == nullptr) return 1;
  XEvent event = {};
  event.xclient.type = ClientMessage;
  event.xclient.window = strtoul(argv[1], nullptr, 0);
  event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
  event.xclient.format = 32;
  event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
  event.xclient.data.l[1] = CurrentTime;
  bool const sent = XSendEvent(display, event.xclient.window, False, NoEventMask, &event) != 0;
  XCloseDisplay(display);
  return sent ? 0 : 1;
}
